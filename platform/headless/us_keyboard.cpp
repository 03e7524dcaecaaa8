#include "headless/us_keyboard.hpp"

#include <array>
#include <string>


namespace ferlan::headless {

namespace {

// A key of the layout that gives a character: its virtual key and the
// characters it gives without and with Shift.
struct CharacterKey {
  Integer vk;
  char16_t normal;
  char16_t shifted;
};

constexpr std::array<CharacterKey, 22> kPunctuationKeys{{
    {48, u'0', u')'},  {49, u'1', u'!'},  {50, u'2', u'@'},  {51, u'3', u'#'},
    {52, u'4', u'$'},  {53, u'5', u'%'},  {54, u'6', u'^'},  {55, u'7', u'&'},
    {56, u'8', u'*'},  {57, u'9', u'('},  {32, u' ', u' '},  {186, u';', u':'},
    {187, u'=', u'+'}, {188, u',', u'<'}, {189, u'-', u'_'}, {190, u'.', u'>'},
    {191, u'/', u'?'}, {192, u'`', u'~'}, {219, u'[', u'{'}, {220, u'\\', u'|'},
    {221, u']', u'}'}, {222, u'\'', u'"'},
}};

// The key that gives `c`, and whether Shift must be held for it.
std::optional<std::pair<CharacterKey, bool>> KeyOf(char16_t c) {
  if (c >= u'a' && c <= u'z') {
    const char16_t upper = static_cast<char16_t>(c - u'a' + u'A');
    return std::pair{CharacterKey{static_cast<Integer>(upper), c, upper}, false};
  }
  if (c >= u'A' && c <= u'Z') {
    const char16_t lower = static_cast<char16_t>(c - u'A' + u'a');
    return std::pair{CharacterKey{static_cast<Integer>(c), lower, c}, true};
  }
  for (const CharacterKey& k : kPunctuationKeys) {
    if (k.normal == c) return std::pair{k, false};
    if (k.shifted == c) return std::pair{k, true};
  }
  return std::nullopt;
}

// What Ctrl gives with a key of the layout: letters 1 to 26, "[", "\" and
// "]" 27 to 29, the space bar a space; other keys give no character.
std::optional<Integer> ControlCode(const CharacterKey& key) {
  if (key.vk >= 65 && key.vk <= 90) return static_cast<Integer>(key.vk - 64);
  if (key.vk == 219) return Integer{27};
  if (key.vk == 220) return Integer{28};
  if (key.vk == 221) return Integer{29};
  if (key.vk == 32) return Integer{32};
  return std::nullopt;
}

std::string CodePoint(char16_t c) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string s = "U+";
  for (int shift = 12; shift >= 0; shift -= 4) s += kHex[(c >> shift) & 0xF];
  return s;
}

KeyItem Key(Integer vk, Integer mask, std::optional<Integer> press) {
  KeyItem item;
  item.has_down = true;
  item.key_code = vk;
  item.shift = mask;
  if (press) {
    item.has_press = true;
    item.key_ascii = *press;
  }
  return item;
}

// A named key: its virtual key, and what it types without Ctrl and with it.
struct NamedKey {
  std::string_view name;
  Integer vk;
  std::optional<Integer> plain;
  std::optional<Integer> with_ctrl;
};

const std::array<NamedKey, 27>& NamedKeys() {
  static const std::array<NamedKey, 27> keys{{
      {"Enter", 13, 13, 10},
      {"Tab", 9, 9, std::nullopt},
      {"Esc", 27, 27, std::nullopt},
      {"Backspace", 8, 8, 127},
      {"Left", 37, std::nullopt, std::nullopt},
      {"Right", 39, std::nullopt, std::nullopt},
      {"Up", 38, std::nullopt, std::nullopt},
      {"Down", 40, std::nullopt, std::nullopt},
      {"Home", 36, std::nullopt, std::nullopt},
      {"End", 35, std::nullopt, std::nullopt},
      {"PgUp", 33, std::nullopt, std::nullopt},
      {"PgDn", 34, std::nullopt, std::nullopt},
      {"Insert", 45, std::nullopt, std::nullopt},
      {"Delete", 46, std::nullopt, std::nullopt},
      {"CapsLock", 20, std::nullopt, std::nullopt},
      {"F1", 112, std::nullopt, std::nullopt},
      {"F2", 113, std::nullopt, std::nullopt},
      {"F3", 114, std::nullopt, std::nullopt},
      {"F4", 115, std::nullopt, std::nullopt},
      {"F5", 116, std::nullopt, std::nullopt},
      {"F6", 117, std::nullopt, std::nullopt},
      {"F7", 118, std::nullopt, std::nullopt},
      {"F8", 119, std::nullopt, std::nullopt},
      {"F9", 120, std::nullopt, std::nullopt},
      {"F10", 121, std::nullopt, std::nullopt},
      {"F11", 122, std::nullopt, std::nullopt},
      {"F12", 123, std::nullopt, std::nullopt},
  }};
  return keys;
}

}  // namespace

KeyItem TypeCharacter(char16_t c, Integer mask) {
  if (c < 0x20 || c == 0x7F) {
    throw PlatformError::InvalidCall("control character " + CodePoint(c) +
                                     " in a key script: use a key name such as {Enter}");
  }
  const auto key = KeyOf(c);
  if (!key) {
    if (mask != 0) {
      throw PlatformError::InvalidCall("no key gives " + CodePoint(c) +
                                       " on a US keyboard, so it takes no Shift, Ctrl or Alt");
    }
    if (c > 0x7FFF) {
      throw PlatformError::InvalidCall("no KeyPress code for " + CodePoint(c));
    }
    const int code = Cp1252Code(c);
    return Key(kPacketKey, 0, static_cast<Integer>(code >= 0 ? code : c));
  }
  const auto& [character_key, needs_shift] = *key;
  const Integer shift = static_cast<Integer>(mask | (needs_shift ? kShiftMask : 0));
  std::optional<Integer> press;
  if (shift & kAltMask) {
    press = std::nullopt;
  } else if (shift & kCtrlMask) {
    press = ControlCode(character_key);
  } else {
    const char16_t typed = (shift & kShiftMask) ? character_key.shifted : character_key.normal;
    press = static_cast<Integer>(Cp1252Code(typed));
  }
  return Key(character_key.vk, shift, press);
}

std::optional<KeyItem> PressNamedKey(std::string_view name, Integer mask) {
  for (const NamedKey& k : NamedKeys()) {
    if (!SameName(k.name, name)) continue;
    std::optional<Integer> press;
    if (mask & kAltMask) {
      press = std::nullopt;
    } else if (mask & kCtrlMask) {
      press = k.with_ctrl;
    } else {
      press = k.plain;
    }
    return Key(k.vk, mask, press);
  }
  return std::nullopt;
}

}  // namespace ferlan::headless
