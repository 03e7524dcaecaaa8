#include "kit/dates.hpp"

namespace ferlan::kit {

namespace {

// The value of the digits of `s` from `at` for `count` characters; -1 when
// one of them is no digit.
int Digits(StringView s, std::size_t at, std::size_t count) {
  int value = 0;
  for (std::size_t i = at; i < at + count; ++i) {
    if (s[i] < u'0' || s[i] > u'9') return -1;
    value = value * 10 + (s[i] - u'0');
  }
  return value;
}

bool IsLeap(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int DaysIn(int month, int year) {
  static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeap(year) ? 29 : kDays[month - 1];
}

}  // namespace

Boolean Dates::Valide(const String& M, Long& ORDREDATE) {
  ORDREDATE = 0;
  const String text = RTrim(M);
  if ((text.size() != 10 && text.size() != 8) || text[2] != u'/' || text[5] != u'/') {
    return false;
  }
  const int day = Digits(text, 0, 2);
  const int month = Digits(text, 3, 2);
  int year = Digits(text, 6, text.size() - 6);
  if (day < 0 || month < 0 || year < 0) return false;
  if (text.size() == 8) year += year < kPivot ? 2000 : 1900;
  if (year < 1 || month < 1 || month > 12 || day < 1 || day > DaysIn(month, year)) return false;
  ORDREDATE = year * 10000 + month * 100 + day;
  return true;
}

}  // namespace ferlan::kit
