// Dates.Valide: formats, the Gregorian calendar, the sort number.
#include "kit/dates.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ferlan::kit {
namespace {

TEST(DatesTest, ValidDatesGiveTheirSortNumber) {
  struct Case {
    String text;
    Long order;
  };
  const std::vector<Case> cases = {
      {u"12/03/2024", 20240312}, {u"29/02/2024", 20240229}, {u"29/02/2000", 20000229},
      {u"31/12/1999", 19991231}, {u"01/01/0001", 10101},    {u"31/12/9999", 99991231},
      {u"12/03/2024   ", 20240312}, {u"12/03/24", 20240312}, {u"01/01/49", 20490101},
      {u"01/01/50", 19500101},   {u"31/01/99", 19990131},   {u"29/02/00", 20000229},
      {u"30/04/2023", 20230430},
  };
  Dates dates;
  for (const Case& c : cases) {
    Long order = -1;
    EXPECT_TRUE(dates.Valide(c.text, order)) << ToUtf8(c.text);
    EXPECT_EQ(order, c.order) << ToUtf8(c.text);
  }
}

TEST(DatesTest, InvalidDatesGiveFalseAndZero) {
  const std::vector<String> invalid = {
      u"",           u"  /  /",     u"  /  /    ", u"29/02/2023", u"29/02/1900",
      u"29/02/2100", u"31/04/2024", u"00/01/2024", u"01/00/2024", u"01/13/2024",
      u"32/01/2024", u"1/3/2024",   u" 1/03/2024", u"12-03-2024", u"12/03/202",
      u"12/03/20245", u"ab/cd/efgh", u"12/03/ 024", u"01/01/0000", u"12/03/2024x",
      u"29/02/23",   u"+1/03/2024", u"12/03"};
  Dates dates;
  for (const String& text : invalid) {
    Long order = 12345;
    EXPECT_FALSE(dates.Valide(text, order)) << ToUtf8(text);
    EXPECT_EQ(order, 0) << ToUtf8(text);
  }
}

TEST(DatesTest, SortNumbersFollowTheCalendar) {
  Dates dates;
  Long a = 0;
  Long b = 0;
  ASSERT_TRUE(dates.Valide(u"31/12/2023", a));
  ASSERT_TRUE(dates.Valide(u"01/01/24", b));
  EXPECT_LT(a, b);
}

}  // namespace
}  // namespace ferlan::kit
