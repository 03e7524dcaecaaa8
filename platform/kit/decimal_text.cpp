// A Double as decimal digits: value = 0.d1 d2 ... dk x 10^point.
#include "kit/decimal_text.hpp"

#include <charconv>
#include <cmath>
#include <string>
#include <system_error>

namespace ferlan::kit {

namespace {

struct Decimal {
  bool negative = false;
  std::string digits;  // no leading zero; empty for zero
  int point = 0;
};

// From the text of std::to_chars in scientific form, "d.ddde+XX".
Decimal FromScientific(const char* begin, const char* end, bool negative) {
  Decimal d;
  d.negative = negative;
  const char* p = begin;
  for (; p < end && *p != 'e'; ++p) {
    if (*p >= '0' && *p <= '9') d.digits += *p;
  }
  int exponent = 0;
  if (p < end) std::from_chars(p + 1 + (p[1] == '+' ? 1 : 0), end, exponent);
  d.point = exponent + 1;
  while (!d.digits.empty() && d.digits.back() == '0') d.digits.pop_back();
  if (d.digits.empty()) d.point = 0;
  return d;
}

// The shortest digits that read back as `v`. Pre: `v` is finite.
Decimal Shortest(Double v) {
  char buffer[64];
  const auto result =
      std::to_chars(buffer, buffer + sizeof buffer, std::fabs(v), std::chars_format::scientific);
  return FromScientific(buffer, result.ptr, std::signbit(v));
}

// At most `significant` digits, rounded by the binary value. Pre: finite.
Decimal Significant(Double v, int significant) {
  char buffer[64];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(v),
                                    std::chars_format::scientific, significant - 1);
  return FromScientific(buffer, result.ptr, std::signbit(v));
}

// Keeps `decimals` places, ties away from zero.
void Round(Decimal& d, int decimals) {
  const long long keep = static_cast<long long>(d.point) + decimals;
  if (keep >= static_cast<long long>(d.digits.size())) return;
  if (keep < 0) {
    d.digits.clear();  // below half a unit of the last place kept
    d.point = 0;
    return;
  }
  const bool up = d.digits[static_cast<std::size_t>(keep)] >= '5';
  d.digits.resize(static_cast<std::size_t>(keep));
  if (up) {
    std::size_t i = d.digits.size();
    while (i > 0 && d.digits[i - 1] == '9') d.digits[--i] = '0';
    if (i == 0) {
      d.digits.insert(d.digits.begin(), '1');
      ++d.point;
    } else {
      ++d.digits[i - 1];
    }
  }
  while (!d.digits.empty() && d.digits.back() == '0') d.digits.pop_back();
  if (d.digits.empty()) d.point = 0;
}

Double ToDouble(const Decimal& d) {
  if (d.digits.empty()) return d.negative ? -0.0 : 0.0;
  const std::string text = "0." + d.digits + "e" + std::to_string(d.point);
  Double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  // Rounding up past the largest Double, as with 1.8e308 to -308 places.
  if (result.ec == std::errc::result_out_of_range) value = HUGE_VAL;
  return d.negative ? -value : value;
}

char DigitAt(const Decimal& d, long long index) {
  return (index < 0 || index >= static_cast<long long>(d.digits.size()))
             ? '0'
             : d.digits[static_cast<std::size_t>(index)];
}

std::string NotFinite(Double v) {
  if (std::isnan(v)) return "NaN";
  return v < 0 ? "-Inf" : "Inf";
}

std::string Fixed(const Decimal& d, long long decimals) {
  std::string text;
  if (d.negative && !d.digits.empty()) text += '-';
  if (d.point <= 0) {
    text += '0';
  } else {
    for (long long i = 0; i < d.point; ++i) text += DigitAt(d, i);
  }
  if (decimals > 0) {
    text += '.';
    for (long long j = 0; j < decimals; ++j) text += DigitAt(d, d.point + j);
  }
  return text;
}

String Ascii(const std::string& text) { return String(text.begin(), text.end()); }

}  // namespace

Double RoundDecimals(Double v, int decimals) {
  if (!std::isfinite(v)) return v;
  Decimal d = Shortest(v);
  Round(d, decimals);
  return ToDouble(d);
}

String FixedText(Double v, int decimals) {
  if (!std::isfinite(v)) return Ascii(NotFinite(v));
  Decimal d = Shortest(v);
  Round(d, decimals);
  return Ascii(Fixed(d, decimals));
}

String ShortText(Double v, int significant) {
  if (!std::isfinite(v)) return Ascii(NotFinite(v));
  if (v == 0) return u"0";
  const Decimal d = Significant(v, significant < 1 ? 1 : significant);
  const long long places = static_cast<long long>(d.digits.size()) - d.point;
  if (d.point > -20 && d.point <= 21) return Ascii(Fixed(d, places > 0 ? places : 0));
  std::string text = d.negative ? "-" : "";
  text += d.digits[0];
  if (d.digits.size() > 1) text += "." + d.digits.substr(1);
  const int exponent = d.point - 1;
  text += exponent < 0 ? "E-" : "E+";
  text += std::to_string(exponent < 0 ? -exponent : exponent);
  return Ascii(text);
}

}  // namespace ferlan::kit
