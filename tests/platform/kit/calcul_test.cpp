// Calcul: expressions of a numeric field, their postfix form and results;
// Dates: the texts of a date field.
#include "kit/calcul.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "kit/dates.hpp"

namespace ferlan::kit {
namespace {

// The result, or which step refused.
String Calculate(const String& text, String* forme = nullptr) {
  Calcul calcul;
  String postfix, result;
  if (!calcul.Analyse(text, postfix)) return u"not analysed";
  if (forme) *forme = postfix;
  return calcul.Evalue(postfix, result) ? result : u"not evaluated";
}

TEST(CalculTest, WorksOutExpressionsWithinTheirLimits) {
  // Text, postfix form, result: up to 15 significant digits, never an exponent.
  // clang-format off
  const std::vector<std::vector<String>> cases = {
      {u"12+3", u"12 3 +", u"15"}, {u"100/6.55957", u"100 6.55957 /", u"15.244901723741"},
      {u"2+3*4", u"2 3 4 * +", u"14"}, {u"(2+3)*4", u"2 3 + 4 *", u"20"},
      {u"10-4-3", u"10 4 - 3 -", u"3"}, {u"2*-3", u"2 3 neg *", u"-6"}, {u"+4", u"4", u"4"},
      {u" 1.5 * ( 2 + .5 ) ", u"1.5 2 .5 + *", u"3.75"}, {u"12.50", u"12.50", u"12.5"},
      {u"0.1+0.2", u"0.1 0.2 +", u"0.3"}, {u"2/3", u"2 3 /", u"0.666666666666667"},
      {u"-0", u"0 neg", u"0"}, {u"1/1000000", u"1 1000000 /", u"0.000001"},
      {u"99999999*99999999", u"99999999 99999999 *", u"9999999800000000"},
      {u"1/0", u"1 0 /", u"not evaluated"}, {u"0/0", u"0 0 /", u"not evaluated"}};
  // clang-format on
  for (const auto& c : cases) {
    String forme;
    EXPECT_EQ(Calculate(c[0], &forme), c[2]) << ToUtf8(c[0]);
    EXPECT_EQ(forme, c[1]) << ToUtf8(c[0]);
  }
  const String big = u"1" + String(300, u'0');
  EXPECT_EQ(Calculate(big + u"*" + big), u"not evaluated");
  EXPECT_EQ(Calculate(String(400, u'9')), u"not evaluated");
  EXPECT_EQ(Calculate(big + u"/" + big), u"1");
  const auto nested = [](std::size_t n) { return String(n, u'(') + u"7" + String(n, u')'); };
  EXPECT_EQ(Calculate(nested(Calcul::kMaxNesting - 1)), u"7");
  EXPECT_EQ(Calculate(nested(Calcul::kMaxNesting)), u"not analysed");
  EXPECT_EQ(Calculate(nested(100000)), u"not analysed");
  EXPECT_EQ(Calculate(String(100000, u'-') + u"1"), u"not analysed");
  String chain = u"1";
  for (int i = 0; i < 10000; ++i) chain += u"+1";
  EXPECT_EQ(Calculate(chain), u"10001");
}

// A step refused and left its output as it was.
bool Refuses(Boolean (Calcul::*step)(const String&, String&), const String& in) {
  String out = u"unchanged";
  return !(Calcul().*step)(in, out) && out == u"unchanged";
}

TEST(CalculTest, RefusesMalformedTextsAndFormes) {
  for (const char16_t* text : {u"",     u"   ",  u"+",    u"1+",   u"*2",     u"(",   u"(1",
                               u"1)",   u"()",   u"1 2",  u"1..2", u"abc",    u"12a", u"1e5",
                               u"12,5", u"AV12", u"100F", u"2**3", u"(1+2))", u".",   u"-"}) {
    EXPECT_TRUE(Refuses(&Calcul::Analyse, text)) << ToUtf8(text);
  }
  for (const char16_t* forme :
       {u"", u"+", u"1 +", u"1 2", u"neg", u"1 x +", u"1 2 %", u"1e5", u"1.2.3", u"-1", u"."}) {
    EXPECT_TRUE(Refuses(&Calcul::Evalue, forme)) << ToUtf8(forme);
  }
}

// Dates.Valide: formats, the Gregorian calendar, the sort number.
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
