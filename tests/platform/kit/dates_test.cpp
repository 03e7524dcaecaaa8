// Dates.Valide: formats, the Gregorian calendar, the sort number.
#include "kit/dates.hpp"

#include <gtest/gtest.h>

#include <utility>

namespace ferlan::kit {
namespace {

TEST(DatesTest, ValidDatesGiveTheirSortNumberAndOthersFalseAndZero) {
  // Text, then yyyymmdd, or 0 when invalid.
  // clang-format off
  const std::pair<String, Long> cases[] = {
      {u"12/03/2024", 20240312}, {u"29/02/2024", 20240229}, {u"29/02/2000", 20000229},
      {u"01/01/0001", 10101}, {u"31/12/9999", 99991231}, {u"12/03/2024   ", 20240312},
      {u"01/01/49", 20490101}, {u"01/01/50", 19500101}, {u"", 0}, {u"29/02/2023", 0},
      {u"29/02/1900", 0}, {u"31/04/2024", 0}, {u"00/01/2024", 0}, {u"01/13/2024", 0},
      {u" 1/03/2024", 0}, {u"12-03-2024", 0}, {u"12/03/202", 0}, {u"12/03/ 024", 0},
      {u"01/01/0000", 0}, {u"12/03/2024x", 0}, {u"29/02/23", 0}, {u"+1/03/2024", 0}};
  // clang-format on
  Dates dates;
  for (const auto& [text, expected] : cases) {
    Long order = 12345;
    EXPECT_EQ(dates.Valide(text, order), expected != 0) << ToUtf8(text);
    EXPECT_EQ(order, expected) << ToUtf8(text);
  }
}

}  // namespace
}  // namespace ferlan::kit
