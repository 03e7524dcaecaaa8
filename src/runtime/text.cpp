// Text operations with 1-based positions, the numeric value of a text, and
// UTF-8 at the edges.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <system_error>

#include "ferlan/runtime.hpp"

namespace ferlan {

namespace {
bool IsBlank(char16_t c) { return c == u' '; }

// Whether a number written "[-]digits[.digits][e[+-]digits]" that from_chars
// finds out of range is too large (rather than too small) for a Double: its
// first significant digit stands at a power of ten above zero.
bool TooLargeForDouble(std::string_view number) {
  std::size_t i = number[0] == '-' ? 1 : 0;
  long long position = 0;  // power of ten of the first significant digit, plus one
  bool seen = false, after_point = false;
  for (; i < number.size() && number[i] != 'e'; ++i) {
    if (number[i] == '.') {
      after_point = true;
    } else if (number[i] != '0' || seen) {
      if (!seen && after_point) {
        seen = true;  // position already counts the zeros after the point
      } else if (!after_point) {
        seen = true;
        ++position;
      }
    } else if (after_point) {
      --position;  // a leading zero after the point
    }
  }
  long long exponent = 0;
  if (i < number.size()) {
    const char* first = number.data() + i + 1 + (number[i + 1] == '+' ? 1 : 0);
    const auto [end, error] = std::from_chars(first, number.data() + number.size(), exponent);
    if (error == std::errc::result_out_of_range) return first[0] != '-';
  }
  return position + exponent > 0;
}
}  // namespace

Long Len(StringView s) { return static_cast<Long>(s.size()); }

StringView LeftView(StringView s, Long n) {
  if (n < 0) throw PlatformError::InvalidCall("Left with a negative length");
  return s.substr(0, static_cast<std::size_t>(n));
}

String Left(StringView s, Long n) { return String(LeftView(s, n)); }

String Right(StringView s, Long n) {
  if (n < 0) throw PlatformError::InvalidCall("Right with a negative length");
  const std::size_t count = std::min(s.size(), static_cast<std::size_t>(n));
  return String(s.substr(s.size() - count));
}

String Mid(StringView s, Long start) {
  if (start < 1) throw PlatformError::InvalidCall("Mid from a position below 1");
  if (static_cast<std::size_t>(start) > s.size()) return {};
  return String(s.substr(static_cast<std::size_t>(start - 1)));
}

StringView MidView(StringView s, Long start, Long length) {
  if (length < 0) throw PlatformError::InvalidCall("Mid with a negative length");
  if (start < 1) throw PlatformError::InvalidCall("Mid from a position below 1");
  // The part taken straight from s, without a copy of the rest first.
  if (static_cast<std::size_t>(start) > s.size()) return {};
  return s.substr(static_cast<std::size_t>(start - 1), static_cast<std::size_t>(length));
}

String Mid(StringView s, Long start, Long length) { return String(MidView(s, start, length)); }

void MidAssign(String& s, Long start, Long length, StringView with) {
  if (start < 1 || static_cast<std::size_t>(start) > s.size() || length < 0) {
    throw PlatformError::InvalidCall("Mid statement outside the text");
  }
  const std::size_t at = static_cast<std::size_t>(start - 1);
  const std::size_t count =
      std::min({static_cast<std::size_t>(length), with.size(), s.size() - at});
  s.replace(at, count, with.substr(0, count));
}

String Space(Long n) {
  if (n < 0) throw PlatformError::InvalidCall("Space with a negative count");
  return String(static_cast<std::size_t>(n), u' ');
}

String RTrim(StringView s) {
  std::size_t end = s.size();
  while (end > 0 && IsBlank(s[end - 1])) --end;
  return String(s.substr(0, end));
}

String LTrim(StringView s) {
  std::size_t begin = 0;
  while (begin < s.size() && IsBlank(s[begin])) ++begin;
  return String(s.substr(begin));
}

String Trim(StringView s) { return LTrim(RTrim(s)); }

bool SameName(std::string_view a, std::string_view b) {
  const auto lower = [](char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
  };
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [&](char x, char y) {
           return lower(x) == lower(y);
         });
}

String UCase(StringView s) {
  String out(s);
  for (char16_t& c : out) {
    if (c >= u'a' && c <= u'z') {
      c = static_cast<char16_t>(c - 32);
    } else if ((c >= 0xE0 && c <= 0xFE && c != 0xF7)) {
      c = static_cast<char16_t>(c - 32);  // Latin-1 letters à..þ
    } else if (c == 0x0153 || c == 0x0161 || c == 0x017E) {
      c = static_cast<char16_t>(c - 1);  // œ š ž
    } else if (c == 0xFF) {
      c = 0x0178;  // ÿ
    }
  }
  return out;
}

Long InStr(Long start, StringView s, StringView what) {
  if (start < 1) throw PlatformError::InvalidCall("InStr from a position below 1");
  if (static_cast<std::size_t>(start) > s.size() + 1) return 0;
  const std::size_t at = s.find(what, static_cast<std::size_t>(start - 1));
  return at == StringView::npos ? 0 : static_cast<Long>(at + 1);
}

Double Val(StringView s) {
  std::size_t i = 0;
  while (i < s.size() && (s[i] == u' ' || s[i] == u'\t')) ++i;
  std::string number;
  if (i < s.size() && (s[i] == u'+' || s[i] == u'-')) number += static_cast<char>(s[i++]);
  bool digits = false;
  while (i < s.size() && s[i] >= u'0' && s[i] <= u'9') {
    number += static_cast<char>(s[i++]);
    digits = true;
  }
  if (i < s.size() && s[i] == u'.') {
    number += '.';
    ++i;
    while (i < s.size() && s[i] >= u'0' && s[i] <= u'9') {
      number += static_cast<char>(s[i++]);
      digits = true;
    }
  }
  if (!digits) return 0;
  // An exponent counts only when digits follow it.
  if (i < s.size() && (s[i] == u'E' || s[i] == u'e' || s[i] == u'D' || s[i] == u'd')) {
    std::size_t j = i + 1;
    std::string exponent = "e";
    if (j < s.size() && (s[j] == u'+' || s[j] == u'-')) exponent += static_cast<char>(s[j++]);
    if (j < s.size() && s[j] >= u'0' && s[j] <= u'9') {
      while (j < s.size() && s[j] >= u'0' && s[j] <= u'9') exponent += static_cast<char>(s[j++]);
      number += exponent;
    }
  }
  // from_chars reads the same text in every C locale; it takes no "+".
  const char* first = number.data() + (number[0] == '+' ? 1 : 0);
  const char* last = number.data() + number.size();
  Double value = 0;
  const auto [end, error] = std::from_chars(first, last, value);
  if (error == std::errc::result_out_of_range) {
    if (!TooLargeForDouble(std::string_view(first, static_cast<std::size_t>(last - first)))) {
      return number[0] == '-' ? -0.0 : 0.0;  // below the smallest Double: zero
    }
    throw PlatformError::Overflow();
  }
  if (std::isinf(value)) throw PlatformError::Overflow();
  return value;
}

String NumberText(Double value) {
  if (value == std::floor(value) && std::fabs(value) < 1e15) {
    return FromUtf8(std::to_string(static_cast<long long>(value)));
  }
  // Fifteen significant digits, shortest form, a point in every C locale.
  char buffer[64];
  const auto result =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15);
  return FromUtf8(std::string_view(buffer, static_cast<std::size_t>(result.ptr - buffer)));
}

std::string ToUtf8(StringView s) {
  std::string out;
  out.reserve(s.size());
  for (std::size_t i = 0; i < s.size(); ++i) {
    char32_t c = s[i];
    if (c >= 0xD800 && c <= 0xDBFF && i + 1 < s.size() && s[i + 1] >= 0xDC00 &&
        s[i + 1] <= 0xDFFF) {
      c = 0x10000 + ((c - 0xD800) << 10) + (s[i + 1] - 0xDC00);
      ++i;
    } else if (c >= 0xD800 && c <= 0xDFFF) {
      c = 0xFFFD;  // a lone surrogate has no UTF-8 form
    }
    if (c < 0x80) {
      out += static_cast<char>(c);
    } else if (c < 0x800) {
      out += static_cast<char>(0xC0 | (c >> 6));
      out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
      out += static_cast<char>(0xE0 | (c >> 12));
      out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
      out += static_cast<char>(0xF0 | (c >> 18));
      out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
      out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (c & 0x3F));
    }
  }
  return out;
}

String FromUtf8(std::string_view s) {
  // Well-formed sequences only, as Unicode defines them: no overlong form, no
  // encoded surrogate, nothing above U+10FFFF. Each maximal part of an
  // ill-formed sequence becomes one U+FFFD.
  String out;
  out.reserve(s.size());
  std::size_t i = 0;
  while (i < s.size()) {
    const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(s[k]); };
    const unsigned char b = byte(i);
    if (b < 0x80) {
      out += static_cast<char16_t>(b);
      ++i;
      continue;
    }
    std::size_t extra = 0;
    unsigned char low = 0x80, high = 0xBF;  // the range of the second byte
    char32_t c = 0;
    if (b >= 0xC2 && b <= 0xDF) {
      extra = 1;
      c = b & 0x1F;
    } else if (b >= 0xE0 && b <= 0xEF) {
      extra = 2;
      c = b & 0x0F;
      if (b == 0xE0) low = 0xA0;   // below is overlong
      if (b == 0xED) high = 0x9F;  // above are surrogates
    } else if (b >= 0xF0 && b <= 0xF4) {
      extra = 3;
      c = b & 0x07;
      if (b == 0xF0) low = 0x90;   // below is overlong
      if (b == 0xF4) high = 0x8F;  // above is beyond U+10FFFF
    }
    std::size_t taken = 1;
    bool whole = extra > 0;
    for (std::size_t k = 1; k <= extra; ++k) {
      const unsigned char lo = k == 1 ? low : 0x80, hi = k == 1 ? high : 0xBF;
      if (i + k >= s.size() || byte(i + k) < lo || byte(i + k) > hi) {
        whole = false;
        break;
      }
      c = (c << 6) | (byte(i + k) & 0x3F);
      taken = k + 1;
    }
    i += taken;
    if (!whole) {
      out += u'\uFFFD';
    } else if (c >= 0x10000) {
      c -= 0x10000;
      out += static_cast<char16_t>(0xD800 + (c >> 10));
      out += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
    } else {
      out += static_cast<char16_t>(c);
    }
  }
  return out;
}

}  // namespace ferlan
