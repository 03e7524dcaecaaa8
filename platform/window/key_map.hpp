// How the window front-end turns SDL's key events into the platform's: the
// virtual-key numbers of KeyDown, its Shift mask, and the codes of KeyPress.
// Plain functions over SDL's numbers (given as int), so that they are tested
// without a display.
// Private to the window front-end: neither installed nor exported.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "ferlan/runtime.hpp"

namespace ferlan::window {

// The KeyPress code of a character the code page lacks and whose UTF-16 code
// does not fit KeyPress either: like any code above 255, it is not delivered.
inline constexpr Integer kBeyondCodePage = 256;

// The Shift mask of KeyDown from SDL's modifier bits: 1 Shift, 2 Ctrl,
// 4 Alt. AltGr (right Alt, or the "mode" key) is Ctrl+Alt, 6, as the
// platform reports it, so that AltGr+E is no Alt+E chord.
Integer ShiftMaskOf(unsigned sdl_modifiers);

// The virtual key of a key, from its SDL keycode (which follows the layout)
// and its scancode (which follows the position): letters A-Z 65-90 as the
// layout names them, digits 48-57 (the digit row by position on layouts
// that type other characters there), the named keys the editor knows,
// modifiers 16-18, the keypad 96-111, punctuation by its US position
// (186-192, 219-222, 226). Nothing for a key without a virtual key here.
std::optional<Integer> VirtualKeyOf(int sdl_keycode, int sdl_scancode);

// The key a keypad key stands for with Num Lock off, as the platform gives
// it: 7 Home, 8 Up, 9 Page Up, 4 Left, 5 Clear (12), 6 Right, 1 End,
// 2 Down, 3 Page Down, 0 Insert, the decimal point Delete. Any other key is
// given back as it is.
Integer KeypadKeyWithoutNumLock(Integer virtual_key);

// The KeyPress that a key gives by itself, with no text from the system:
// Enter 13 (Ctrl+Enter 10), Backspace 8 (Ctrl+Backspace 127), Tab 9,
// Escape 27, Ctrl+letter 1 to 26, Ctrl+[ \ ] 27 to 29, Ctrl+Space 32.
// Nothing for other keys, nor with Alt (AltGr aside, which types text).
std::optional<Integer> ControlKeyPress(Integer virtual_key, Integer mask);

// Whether text the system typed with this key held reaches KeyPress: not
// with Ctrl or Alt alone (the platform gives those keys no character), yes
// with none, Shift, or AltGr.
bool TextReachesKeyPress(Integer mask);

// The KeyPress codes of text from the system's text input (UTF-8), one a
// character: its Windows-1252 code, or its UTF-16 code when the code page
// lacks it (above 255, so the key pipeline leaves it undelivered), or
// kBeyondCodePage when that code does not fit an Integer.
std::vector<Integer> KeyPressCodesOf(std::string_view utf8);

}  // namespace ferlan::window
