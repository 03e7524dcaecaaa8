// Text operations with 1-based positions, the numeric value of a text, and
// UTF-8 at the edges.
#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "ferlan/runtime.hpp"

namespace ferlan {

namespace {
bool IsBlank(char16_t c) { return c == u' '; }
}  // namespace

Long Len(StringView s) { return static_cast<Long>(s.size()); }

String Left(StringView s, Long n) {
  if (n < 0) throw PlatformError::InvalidCall("Left with a negative length");
  return String(s.substr(0, static_cast<std::size_t>(n)));
}

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

String Mid(StringView s, Long start, Long length) {
  if (length < 0) throw PlatformError::InvalidCall("Mid with a negative length");
  return Left(Mid(s, start), length);
}

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
  const Double value = std::strtod(number.c_str(), nullptr);
  if (std::isinf(value)) throw PlatformError::Overflow();
  return value;
}

String NumberText(Double value) {
  if (value == std::floor(value) && std::fabs(value) < 1e15) {
    return FromUtf8(std::to_string(static_cast<long long>(value)));
  }
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.15g", value);
  return FromUtf8(buffer);
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
  String out;
  out.reserve(s.size());
  std::size_t i = 0;
  while (i < s.size()) {
    const unsigned char b = static_cast<unsigned char>(s[i]);
    char32_t c = 0xFFFD;
    std::size_t extra = 0;
    if (b < 0x80) {
      c = b;
    } else if ((b & 0xE0) == 0xC0) {
      c = b & 0x1F;
      extra = 1;
    } else if ((b & 0xF0) == 0xE0) {
      c = b & 0x0F;
      extra = 2;
    } else if ((b & 0xF8) == 0xF0) {
      c = b & 0x07;
      extra = 3;
    }
    std::size_t taken = 1;
    for (std::size_t k = 1; k <= extra; ++k) {
      if (i + k >= s.size() || (static_cast<unsigned char>(s[i + k]) & 0xC0) != 0x80) {
        c = 0xFFFD;  // truncated sequence: one replacement for the lead byte
        extra = 0;
        break;
      }
      c = (c << 6) | (static_cast<unsigned char>(s[i + k]) & 0x3F);
      taken = k + 1;
    }
    if (b >= 0x80 && extra == 0 && taken == 1) c = 0xFFFD;
    i += taken;
    if (c >= 0x10000 && c <= 0x10FFFF) {
      c -= 0x10000;
      out += static_cast<char16_t>(0xD800 + (c >> 10));
      out += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
    } else {
      out += static_cast<char16_t>(c > 0x10FFFF ? 0xFFFD : c);
    }
  }
  return out;
}

}  // namespace ferlan
