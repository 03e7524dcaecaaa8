#include "window/key_map.hpp"

#include <SDL.h>

#include <array>
#include <utility>

namespace ferlan::window {

namespace {

constexpr Integer kShift = 1;
constexpr Integer kCtrl = 2;
constexpr Integer kAlt = 4;

struct Named {
  SDL_Keycode key;
  Integer vk;
};

constexpr std::array<Named, 50> kNamedKeys{{
    {SDLK_RETURN, 13},      {SDLK_KP_ENTER, 13},    {SDLK_TAB, 9},
    {SDLK_ESCAPE, 27},      {SDLK_BACKSPACE, 8},    {SDLK_SPACE, 32},
    {SDLK_LEFT, 37},        {SDLK_UP, 38},          {SDLK_RIGHT, 39},
    {SDLK_DOWN, 40},        {SDLK_HOME, 36},        {SDLK_END, 35},
    {SDLK_PAGEUP, 33},      {SDLK_PAGEDOWN, 34},    {SDLK_INSERT, 45},
    {SDLK_DELETE, 46},      {SDLK_CAPSLOCK, 20},    {SDLK_F1, 112},
    {SDLK_F2, 113},         {SDLK_F3, 114},         {SDLK_F4, 115},
    {SDLK_F5, 116},         {SDLK_F6, 117},         {SDLK_F7, 118},
    {SDLK_F8, 119},         {SDLK_F9, 120},         {SDLK_F10, 121},
    {SDLK_F11, 122},        {SDLK_F12, 123},        {SDLK_LSHIFT, 16},
    {SDLK_RSHIFT, 16},      {SDLK_LCTRL, 17},       {SDLK_RCTRL, 17},
    {SDLK_LALT, 18},        {SDLK_RALT, 18},        {SDLK_MODE, 18},
    {SDLK_KP_0, 96},        {SDLK_KP_1, 97},        {SDLK_KP_2, 98},
    {SDLK_KP_3, 99},        {SDLK_KP_4, 100},       {SDLK_KP_5, 101},
    {SDLK_KP_6, 102},       {SDLK_KP_7, 103},       {SDLK_KP_8, 104},
    {SDLK_KP_9, 105},       {SDLK_KP_MULTIPLY, 106}, {SDLK_KP_PLUS, 107},
    {SDLK_KP_MINUS, 109},   {SDLK_KP_DIVIDE, 111},
}};

// Punctuation keys by position, with the numbers of the US layout.
constexpr std::array<std::pair<SDL_Scancode, Integer>, 13> kPunctuation{{
    {SDL_SCANCODE_SEMICOLON, 186},
    {SDL_SCANCODE_EQUALS, 187},
    {SDL_SCANCODE_COMMA, 188},
    {SDL_SCANCODE_MINUS, 189},
    {SDL_SCANCODE_PERIOD, 190},
    {SDL_SCANCODE_SLASH, 191},
    {SDL_SCANCODE_GRAVE, 192},
    {SDL_SCANCODE_LEFTBRACKET, 219},
    {SDL_SCANCODE_BACKSLASH, 220},
    {SDL_SCANCODE_RIGHTBRACKET, 221},
    {SDL_SCANCODE_APOSTROPHE, 222},
    {SDL_SCANCODE_NONUSBACKSLASH, 226},
    {SDL_SCANCODE_KP_PERIOD, 110},
}};

}  // namespace

Integer ShiftMaskOf(unsigned sdl_modifiers) {
  Integer mask = 0;
  if (sdl_modifiers & KMOD_SHIFT) mask |= kShift;
  if (sdl_modifiers & KMOD_CTRL) mask |= kCtrl;
  if (sdl_modifiers & KMOD_LALT) mask |= kAlt;
  if (sdl_modifiers & (KMOD_RALT | KMOD_MODE)) mask |= kCtrl | kAlt;
  return mask;
}

std::optional<Integer> VirtualKeyOf(int sdl_keycode, int sdl_scancode) {
  if (sdl_keycode >= SDLK_a && sdl_keycode <= SDLK_z) {
    return static_cast<Integer>(sdl_keycode - SDLK_a + 65);
  }
  if (sdl_keycode >= SDLK_0 && sdl_keycode <= SDLK_9) {
    return static_cast<Integer>(sdl_keycode - SDLK_0 + 48);
  }
  for (const Named& k : kNamedKeys) {
    if (k.key == sdl_keycode) return k.vk;
  }
  // Layouts whose keys type other letters (Cyrillic, Greek) or other
  // characters on the digit row (AZERTY) keep the numbers of the position.
  if (sdl_scancode >= SDL_SCANCODE_A && sdl_scancode <= SDL_SCANCODE_Z) {
    return static_cast<Integer>(sdl_scancode - SDL_SCANCODE_A + 65);
  }
  if (sdl_scancode >= SDL_SCANCODE_1 && sdl_scancode <= SDL_SCANCODE_9) {
    return static_cast<Integer>(sdl_scancode - SDL_SCANCODE_1 + 49);
  }
  if (sdl_scancode == SDL_SCANCODE_0) return Integer{48};
  for (const auto& [scancode, vk] : kPunctuation) {
    if (scancode == sdl_scancode) return vk;
  }
  return std::nullopt;
}

Integer KeypadKeyWithoutNumLock(Integer virtual_key) {
  // Indexed by the keypad's numbers 96 (0) to 105 (9).
  constexpr std::array<Integer, 10> kMoves{45, 35, 40, 34, 37, 12, 39, 36, 38, 33};
  if (virtual_key >= 96 && virtual_key <= 105) {
    return kMoves[static_cast<std::size_t>(virtual_key - 96)];
  }
  return virtual_key == 110 ? Integer{46} : virtual_key;
}

std::optional<Integer> ControlKeyPress(Integer virtual_key, Integer mask) {
  const bool ctrl = (mask & kCtrl) != 0;
  if ((mask & kAlt) != 0) return std::nullopt;
  switch (virtual_key) {
    case 13: return Integer{static_cast<Integer>(ctrl ? 10 : 13)};
    case 8: return Integer{static_cast<Integer>(ctrl ? 127 : 8)};
    case 9: return ctrl ? std::nullopt : std::optional<Integer>(9);
    case 27: return ctrl ? std::nullopt : std::optional<Integer>(27);
    default: break;
  }
  if (!ctrl) return std::nullopt;
  if (virtual_key >= 65 && virtual_key <= 90) return static_cast<Integer>(virtual_key - 64);
  if (virtual_key >= 219 && virtual_key <= 221) return static_cast<Integer>(virtual_key - 192);
  if (virtual_key == 32) return Integer{32};
  return std::nullopt;
}

bool TextReachesKeyPress(Integer mask) {
  const Integer chord = mask & (kCtrl | kAlt);
  return chord == 0 || chord == (kCtrl | kAlt);
}

std::vector<Integer> KeyPressCodesOf(std::string_view utf8) {
  std::vector<Integer> codes;
  const String text = FromUtf8(utf8);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (unit >= 0xD800 && unit <= 0xDBFF && i + 1 < text.size()) {
      ++i;  // a character beyond the 16-bit plane: one key, one code
      codes.push_back(kBeyondCodePage);
      continue;
    }
    const int code = Cp1252Code(unit);
    if (code >= 0) {
      codes.push_back(static_cast<Integer>(code));
    } else {
      codes.push_back(unit <= 0x7FFF ? static_cast<Integer>(unit) : kBeyondCodePage);
    }
  }
  return codes;
}

}  // namespace ferlan::window
