// The list format. A list is "[" elements separated by "," "]"; an element is
// plain text (no [ ] , " in it, blanks kept), a list in its turn, or a text
// in double quotes with "" for a quote. docs/lists.md has the whole grammar
// and what a malformed list gives.
#include "kit/list_format.hpp"

namespace ferlan::kit {

namespace {

// Blanks that may stand around a quoted element or a sublist.
bool IsSpace(char16_t c) { return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n'; }

bool IsSpecial(char16_t c) { return c == u'[' || c == u']' || c == u',' || c == u'"'; }

StringView TrimSpaces(StringView s) {
  std::size_t begin = 0;
  std::size_t end = s.size();
  while (begin < end && IsSpace(s[begin])) ++begin;
  while (end > begin && IsSpace(s[end - 1])) --end;
  return s.substr(begin, end - begin);
}

// The content of `s` when it is exactly one quoted text, "" standing for a
// quote; nothing otherwise.
bool Unquote(StringView s, String& out) {
  if (s.size() < 2 || s.front() != u'"') return false;
  String text;
  std::size_t i = 1;
  while (i < s.size()) {
    if (s[i] == u'"') {
      if (i + 1 < s.size() && s[i + 1] == u'"') {
        text += u'"';
        i += 2;
        continue;
      }
      if (i + 1 != s.size()) return false;  // something follows the closing quote
      out = std::move(text);
      return true;
    }
    text += s[i++];
  }
  return false;  // no closing quote
}

// What one element's stretch of text stands for: a quoted text gives its
// content, a sublist itself (blanks around both dropped), anything else its
// text exactly as it stands.
String Decode(StringView slice) {
  StringView core = TrimSpaces(slice);
  String unquoted;
  if (Unquote(core, unquoted)) return unquoted;
  if (core.size() >= 2 && core.front() == u'[' && core.back() == u']') return String(core);
  return String(slice);
}

}  // namespace

ListReader::ListReader(StringView list) : list_(list) {
  if (list == u"[]") {
    at_end_ = true;
  } else if (list.empty() || list.front() != u'[') {
    bare_ = true;
  } else {
    closed_ = list.size() >= 2 && list.back() == u']';
    body_ = list.substr(1, list.size() - (closed_ ? 2 : 1));
  }
}

std::size_t ListReader::ElementEnd() const {
  // The element runs to the first comma outside quotes and brackets. A stray
  // "]" does not take the depth below 0, so it reads as a plain character.
  std::size_t depth = 0;
  bool in_quote = false;
  std::size_t stop = pos_;
  for (; stop < body_.size(); ++stop) {
    const char16_t c = body_[stop];
    if (in_quote) {
      if (c == u'"') in_quote = false;
    } else if (c == u'"') {
      in_quote = true;
    } else if (c == u'[') {
      ++depth;
    } else if (c == u']') {
      if (depth > 0) --depth;
    } else if (c == u',' && depth == 0) {
      break;
    }
  }
  return stop;
}

void ListReader::MovePast(std::size_t stop) {
  // Nothing after the last comma means no further element, so that a removal
  // always shortens the list.
  if (stop + 1 < body_.size()) {
    pos_ = stop + 1;
  } else {
    at_end_ = true;
  }
}

String ListReader::Next() {
  if (at_end_) return {};
  if (bare_) {
    at_end_ = true;
    return String(list_);
  }
  const std::size_t stop = ElementEnd();
  String value = Decode(body_.substr(pos_, stop - pos_));
  MovePast(stop);
  return value;
}

void ListReader::Skip() {
  if (at_end_) return;
  if (bare_) {
    at_end_ = true;
    return;
  }
  MovePast(ElementEnd());
}

void ListReader::DropRead(String& list) const {
  if (at_end_) {
    list = u"[]";
  } else if (!bare_) {
    // The body starts after the opening bracket; the rest, closing bracket
    // included, stays as it is.
    list.erase(1, pos_);
  }
}

String EncodeElement(StringView element) {
  bool plain = !element.empty();
  for (char16_t c : element) {
    if (IsSpecial(c)) {
      plain = false;
      break;
    }
  }
  if (plain || CheckList(element).ok) return String(element);
  String quoted = u"\"";
  for (char16_t c : element) {
    quoted += c;
    if (c == u'"') quoted += u'"';
  }
  quoted += u'"';
  return quoted;
}

ListCheck CheckList(StringView s) {
  const std::size_t n = s.size();
  const auto wrong = [](std::size_t i) { return ListCheck{false, static_cast<Long>(i + 1)}; };
  if (n == 0 || s[0] != u'[') return wrong(0);

  // One pass with a depth counter in place of recursion.
  enum class Expect { kElementOrClose, kElement, kSeparatorAfterSpaces, kSeparator };
  std::size_t depth = 1;
  std::size_t i = 1;
  Expect expect = Expect::kElementOrClose;
  for (;;) {
    switch (expect) {
      case Expect::kElementOrClose:
        expect = (i < n && s[i] == u']') ? Expect::kSeparator : Expect::kElement;
        break;
      case Expect::kElement: {
        std::size_t j = i;
        while (j < n && IsSpace(s[j])) ++j;
        if (j < n && s[j] == u'"') {
          std::size_t k = j + 1;
          for (;;) {
            if (k >= n) return wrong(n);
            if (s[k] == u'"') {
              if (k + 1 < n && s[k + 1] == u'"') {
                k += 2;
                continue;
              }
              break;
            }
            ++k;
          }
          i = k + 1;
          expect = Expect::kSeparatorAfterSpaces;
        } else if (j < n && s[j] == u'[') {
          ++depth;
          i = j + 1;
          expect = Expect::kElementOrClose;
        } else {
          // Plain text, blanks included, up to the separator.
          std::size_t k = i;
          while (k < n && s[k] != u',' && s[k] != u']') {
            if (s[k] == u'[' || s[k] == u'"') return wrong(k);
            ++k;
          }
          if (k == n) return wrong(n);
          if (k == i) return wrong(k);  // an empty element is written ""
          i = k;
          expect = Expect::kSeparator;
        }
        break;
      }
      case Expect::kSeparatorAfterSpaces:
        while (i < n && IsSpace(s[i])) ++i;
        expect = Expect::kSeparator;
        break;
      case Expect::kSeparator:
        if (i >= n) return wrong(n);
        if (s[i] == u',') {
          ++i;
          expect = Expect::kElement;
        } else if (s[i] == u']') {
          ++i;
          if (--depth == 0) return i == n ? ListCheck{} : wrong(i);
          expect = Expect::kSeparatorAfterSpaces;
        } else {
          return wrong(i);
        }
        break;
    }
  }
}

}  // namespace ferlan::kit
