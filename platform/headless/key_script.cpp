#include "headless/key_script.hpp"

#include <charconv>

#include "headless/us_keyboard.hpp"

namespace ferlan::headless {

namespace {

// Walks a script, one UTF-16 unit a character (surrogates are refused, so a
// unit is a character and positions count characters).
class Parser {
 public:
  explicit Parser(std::string_view utf8) : text_(FromUtf8(utf8)) {}

  std::vector<KeyItem> Run(std::size_t limit) {
    std::vector<KeyItem> items;
    while (at_ < text_.size()) {
      const std::size_t start = at_;
      if (items.size() == limit) {
        Fail(start, "the queue holds at most " + std::to_string(KeyScript::kMaxQueued) +
                        " items waiting");
      }
      KeyItem item = Next();
      item.source = ToUtf8(StringView(text_).substr(start, at_ - start));
      items.push_back(std::move(item));
    }
    return items;
  }

 private:
  [[noreturn]] void Fail(std::size_t at, const std::string& why) const {
    throw PlatformError::InvalidCall("key script at " + std::to_string(at + 1) + ": " + why);
  }

  char16_t Character(std::size_t at) const {
    const char16_t c = text_[at];
    if (c >= 0xD800 && c <= 0xDFFF) Fail(at, "a character beyond U+FFFF has no key code");
    return c;
  }

  KeyItem Next() {
    const std::size_t start = at_;
    const char16_t c = Character(at_++);
    if (c != u'{') return Typed(start, c, 0);
    if (at_ < text_.size() && text_[at_] == u'{') {
      ++at_;
      return Typed(start, u'{', 0);
    }
    const std::size_t close = text_.find(u'}', at_);
    if (close == String::npos) Fail(start, "\"{\" without \"}\" (write {{ for a brace)");
    for (std::size_t i = at_; i < close; ++i) Character(i);
    const String body = text_.substr(at_, close - at_);
    at_ = close + 1;
    return Braced(start + 1, body);
  }

  KeyItem Typed(std::size_t at, char16_t c, Integer mask) const {
    try {
      return TypeCharacter(c, mask);
    } catch (const PlatformError& e) {
      Fail(at, Reason(e));
    }
  }

  // The text of a platform error without its number's general words.
  static std::string Reason(const PlatformError& e) {
    const std::string& d = e.Description();
    const std::size_t colon = d.find(": ");
    return colon == std::string::npos ? d : d.substr(colon + 2);
  }

  KeyItem Braced(std::size_t at, const String& body) const {
    if (body.empty()) Fail(at, "empty {}");
    const std::string word = ToUtf8(body);
    if (SameName(word, "abandon")) {
      KeyItem item;
      item.kind = KeyItem::Kind::Abandon;
      return item;
    }
    if (StartsWith(word, "down:")) {
      const std::string_view rest = std::string_view(word).substr(5);
      const std::size_t colon = rest.find(':');
      if (colon == std::string_view::npos) Fail(at, "write {down:KeyCode:Shift}");
      KeyItem item;
      item.has_down = true;
      item.key_code = Whole<Integer>(at, rest.substr(0, colon), "KeyCode");
      item.shift = Whole<Integer>(at, rest.substr(colon + 1), "Shift");
      return item;
    }
    if (StartsWith(word, "press:")) {
      KeyItem item;
      item.has_press = true;
      item.key_ascii = Whole<Integer>(at, std::string_view(word).substr(6), "KeyAscii");
      return item;
    }
    if (StartsWith(word, "wait:")) {
      KeyItem item;
      item.kind = KeyItem::Kind::Wait;
      item.wait_ms = Whole<Long>(at, std::string_view(word).substr(5), "wait");
      if (item.wait_ms < 0) Fail(at, "a wait of negative time");
      return item;
    }
    return Chord(at, body);
  }

  // Prefixes, then a key name or one character.
  KeyItem Chord(std::size_t at, const String& body) const {
    Integer mask = 0;
    StringView rest = body;
    for (;;) {
      const std::size_t plus = rest.find(u'+');
      // A "+" that is the last character is the key itself: {Ctrl++}.
      if (plus == StringView::npos || plus + 1 == rest.size()) break;
      const std::string prefix = ToUtf8(rest.substr(0, plus));
      Integer bit = 0;
      if (SameName(prefix, "Shift")) bit = kShiftMask;
      if (SameName(prefix, "Ctrl")) bit = kCtrlMask;
      if (SameName(prefix, "Alt")) bit = kAltMask;
      if (bit == 0) Fail(at, "unknown prefix \"" + prefix + "+\" (Shift+, Ctrl+, Alt+)");
      if (mask & bit) Fail(at, "\"" + prefix + "+\" twice");
      mask = static_cast<Integer>(mask | bit);
      rest = rest.substr(plus + 1);
    }
    if (rest.size() == 1) {
      char16_t c = rest[0];
      // After a prefix a letter names its key, as on the key cap: {Ctrl+B}
      // is Ctrl and the B key, without Shift.
      if (mask != 0 && c >= u'A' && c <= u'Z') c = static_cast<char16_t>(c - u'A' + u'a');
      return Typed(at, c, mask);
    }
    const std::string name = ToUtf8(rest);
    if (auto item = PressNamedKey(name, mask)) return *item;
    Fail(at, "unknown key {" + name + "}");
  }

  static bool StartsWith(const std::string& s, std::string_view prefix) {
    return s.size() >= prefix.size() && SameName(s.substr(0, prefix.size()), prefix);
  }

  template <class T>
  T Whole(std::size_t at, std::string_view digits, const char* what) const {
    long long value = 0;
    const char* first = digits.data();
    const char* last = digits.data() + digits.size();
    auto [end, error] = std::from_chars(first, last, value);
    if (digits.empty() || error != std::errc() || end != last) {
      Fail(at, std::string(what) + " \"" + std::string(digits) + "\" is not a whole number");
    }
    try {
      if constexpr (sizeof(T) == sizeof(Integer)) {
        return ToInteger(value);
      } else {
        return ToLong(value);
      }
    } catch (const PlatformError&) {
      Fail(at, std::string(what) + " " + std::string(digits) + " is out of range");
    }
  }

  String text_;
  std::size_t at_ = 0;
};

}  // namespace

std::string Describe(const KeyItem& item) {
  switch (item.kind) {
    case KeyItem::Kind::Wait:
      return "wait " + std::to_string(item.wait_ms);
    case KeyItem::Kind::Abandon:
      return "abandon";
    case KeyItem::Kind::Key:
      break;
  }
  std::string s;
  if (item.has_down) {
    s += "KeyDown(" + std::to_string(item.key_code) + "," + std::to_string(item.shift) + ")";
  }
  if (item.has_press) {
    if (!s.empty()) s += " ";
    s += "KeyPress(" + std::to_string(item.key_ascii) + ")";
  }
  return s;
}

std::vector<KeyItem> KeyScript::Parse(std::string_view script, std::size_t limit) {
  return Parser(script).Run(limit);
}

std::size_t KeyScript::Append(std::string_view script) {
  // Checked while parsing, so a script too long costs no more than the room left.
  std::vector<KeyItem> parsed = Parse(script, kMaxQueued - items_.size());
  items_.insert(items_.end(), parsed.begin(), parsed.end());
  return parsed.size();
}

}  // namespace ferlan::headless
