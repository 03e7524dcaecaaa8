// Key scripts: the one notation in which tests and `ferlan automate` type.
//
//   plain characters      typed as on a US keyboard
//   {Enter} {Tab} {Esc} {Backspace} {Left} {Right} {Up} {Down} {Home} {End}
//   {PgUp} {PgDn} {Insert} {Delete} {F1}..{F12} {CapsLock}
//   {Shift+K} {Ctrl+K} {Alt+K}  prefixes in any combination before a key
//                               name or one character: {Ctrl+Shift+Left};
//                               a letter there names its key, so {Ctrl+B}
//                               and {Ctrl+b} are alike and hold no Shift
//   {{                    a typed "{"
//   {down:K:S} {press:A}  a raw KeyDown(K, S) or KeyPress(A)
//   {wait:N}              N ms pass with no key
//   {abandon}             Env.Abandon becomes True at that point
//
// Translation is that of a real keyboard: a key that gives a character has
// KeyDown with its virtual-key number and the Shift mask (1 Shift, 2 Ctrl,
// 4 Alt), then KeyPress with the character's code. Ctrl+letter gives 1 to
// 26, Alt gives no character, Enter/Backspace/Tab/Esc give 13/8/9/27 (Ctrl+
// Enter 10, Ctrl+Backspace 127), other named keys give KeyDown only. A
// character the US layout lacks (é, €) is KeyDown(231, 0), the platform's
// packet key, then KeyPress of its Windows-1252 code, or of its UTF-16 code
// when the code page lacks it.
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "ferlan/runtime.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::headless {

// The Shift mask of KeyDown.
inline constexpr Integer kShiftMask = 1;
inline constexpr Integer kCtrlMask = 2;
inline constexpr Integer kAltMask = 4;
// The virtual key of a character typed without a key of its own.
inline constexpr Integer kPacketKey = 231;

// One item of a script: what one DoEvents delivers.
struct KeyItem {
  enum class Kind { Key, Wait, Abandon };
  Kind kind = Kind::Key;
  bool has_down = false;  // Key: a KeyDown(key_code, shift) first
  Integer key_code = 0;
  Integer shift = 0;
  bool has_press = false;  // Key: then a KeyPress(key_ascii)
  Integer key_ascii = 0;
  Long wait_ms = 0;     // Wait
  std::string source;   // the item as written, for messages
  friend bool operator==(const KeyItem&, const KeyItem&) = default;
};

// "KeyDown(66,2) KeyPress(2)", "wait 30", "abandon": for failure messages.
std::string Describe(const KeyItem& item);

class KeyScript {
 public:
  // Items waiting at most: what nobody reads costs bounded memory.
  static constexpr std::size_t kMaxQueued = 100'000;

  // The items of a whole script, UTF-8. Errors: 5 naming the position (a
  // count of characters from 1) and the fault, also the first item past
  // `limit`.
  static std::vector<KeyItem> Parse(std::string_view script,
                                    std::size_t limit = static_cast<std::size_t>(-1));

  // Parses `script` and queues its items after those waiting; gives how many
  // were queued. A bad script, or one that would bring the items waiting
  // past kMaxQueued, queues nothing.
  std::size_t Append(std::string_view script);

  bool Empty() const { return items_.empty(); }
  std::size_t Size() const { return items_.size(); }
  // Pre: !Empty().
  KeyItem& Front() { return items_.front(); }
  void Pop() { items_.pop_front(); }
  void Clear() { items_.clear(); }

 private:
  std::deque<KeyItem> items_;
};

}  // namespace ferlan::headless

FERLAN_PUBLIC_END
