// Dates.Valide under arbitrary texts. Invariants checked: a refused text
// gives 0; an accepted one gives a sort number yyyymmdd of a real date, and
// that date written "dd/mm/yyyy" is accepted with the same number.
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz_text.hpp"
#include "kit/dates.hpp"

using ferlan::Long;
using ferlan::String;
using ferlan::fuzz::Fail;

namespace {

String TwoDigits(int v) {
  return String{static_cast<char16_t>(u'0' + v / 10), static_cast<char16_t>(u'0' + v % 10)};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const String text = ferlan::fuzz::TextOf(data, size);
  ferlan::kit::Dates dates;
  Long order = -1;
  if (!dates.Valide(text, order)) {
    if (order != 0) Fail("refused date with a sort number");
    return 0;
  }
  const int year = order / 10000;
  const int month = order / 100 % 100;
  const int day = order % 100;
  if (year < 1 || year > 9999 || month < 1 || month > 12 || day < 1 || day > 31) {
    Fail("sort number out of range");
  }
  const String written = TwoDigits(day) + u"/" + TwoDigits(month) + u"/" +
                         TwoDigits(year / 100) + TwoDigits(year % 100);
  Long again = 0;
  if (!dates.Valide(written, again) || again != order) Fail("date does not read back");
  return 0;
}
