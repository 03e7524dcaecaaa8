// Calcul: expressions of a numeric field, their postfix form and results.
#include "kit/calcul.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ferlan::kit {
namespace {

std::string Show(const String& s) { return ToUtf8(s); }

struct Outcome {
  bool analysed = false;
  bool evaluated = false;
  String forme;
  String result;
};

Outcome Calculate(const String& text) {
  Calcul calcul;
  Outcome out;
  out.analysed = calcul.Analyse(text, out.forme);
  if (out.analysed) out.evaluated = calcul.Evalue(out.forme, out.result);
  return out;
}

TEST(CalculTest, WorksOutExpressions) {
  struct Case {
    String text;
    String forme;
    String result;
  };
  const std::vector<Case> cases = {
      {u"12+3", u"12 3 +", u"15"},
      {u"100/6.55957", u"100 6.55957 /", u"15.244901723741"},
      {u"2*3+4", u"2 3 * 4 +", u"10"},
      {u"2+3*4", u"2 3 4 * +", u"14"},
      {u"(2+3)*4", u"2 3 + 4 *", u"20"},
      {u"10-4-3", u"10 4 - 3 -", u"3"},
      {u"64/4/2", u"64 4 / 2 /", u"8"},
      {u"-5+2", u"5 neg 2 +", u"-3"},
      {u"2*-3", u"2 3 neg *", u"-6"},
      {u"--4", u"4 neg neg", u"4"},
      {u"+4", u"4", u"4"},
      {u" 1.5 * ( 2 + .5 ) ", u"1.5 2 .5 + *", u"3.75"},
      {u"12", u"12", u"12"},
      {u"12.50", u"12.50", u"12.5"},
      {u"5.", u"5.", u"5"},
      {u"0.1+0.2", u"0.1 0.2 +", u"0.3"},
      {u"1/3", u"1 3 /", u"0.333333333333333"},
      {u"2/3", u"2 3 /", u"0.666666666666667"},
      {u"1-1", u"1 1 -", u"0"},
      {u"-0", u"0 neg", u"0"},
      {u"1/1000000", u"1 1000000 /", u"0.000001"},
      {u"99999999*99999999", u"99999999 99999999 *", u"9999999800000000"},
  };
  for (const Case& c : cases) {
    const Outcome out = Calculate(c.text);
    EXPECT_TRUE(out.analysed) << Show(c.text);
    EXPECT_EQ(out.forme, c.forme) << Show(c.text);
    EXPECT_TRUE(out.evaluated) << Show(c.text);
    EXPECT_EQ(out.result, c.result) << Show(c.text);
  }
}

TEST(CalculTest, RefusesWhatItCannotWorkOut) {
  const std::vector<String> malformed = {
      u"",     u"   ",  u"+",     u"1+",   u"*2",    u"(",      u"(1",    u"1)",
      u"()",   u"1 2",  u"1..2",  u"1.2.3", u"abc",  u"12a",    u"1e5",   u"12,5",
      u"AV12", u"100F", u"2**3",  u"2//3", u"1+(2", u"(1+2))", u".",     u"-"};
  for (const String& text : malformed) {
    Calcul calcul;
    String forme = u"unchanged";
    EXPECT_FALSE(calcul.Analyse(text, forme)) << Show(text);
    EXPECT_EQ(forme, u"unchanged") << Show(text);
  }
  const std::vector<String> failing = {u"1/0", u"1/(2-2)", u"0/0", u"-1/0.0"};
  for (const String& text : failing) {
    const Outcome out = Calculate(text);
    EXPECT_TRUE(out.analysed) << Show(text);
    EXPECT_FALSE(out.evaluated) << Show(text);
  }
}

TEST(CalculTest, OverflowGivesFalse) {
  const String big = u"1" + String(300, u'0');
  EXPECT_FALSE(Calculate(big + u"*" + big).evaluated);
  EXPECT_FALSE(Calculate(String(400, u'9')).evaluated);
  EXPECT_TRUE(Calculate(big + u"/" + big).evaluated);
}

TEST(CalculTest, NestingIsBounded) {
  const int limit = Calcul::kMaxNesting;
  const auto nested = [](int depth) {
    return String(static_cast<std::size_t>(depth), u'(') + u"7" +
           String(static_cast<std::size_t>(depth), u')');
  };
  const Outcome inside = Calculate(nested(limit - 1));
  EXPECT_TRUE(inside.evaluated);
  EXPECT_EQ(inside.result, u"7");
  EXPECT_FALSE(Calculate(nested(limit)).analysed);
  EXPECT_FALSE(Calculate(nested(100000)).analysed);
  EXPECT_FALSE(Calculate(String(100000, u'-') + u"1").analysed);
  // Long chains are loops, not nesting.
  String chain = u"1";
  for (int i = 0; i < 10000; ++i) chain += u"+1";
  EXPECT_EQ(Calculate(chain).result, u"10001");
}

TEST(CalculTest, EvalueRefusesMalformedFormes) {
  const std::vector<String> formes = {u"",     u"+",     u"1 +",  u"1 2",   u"neg",
                                      u"1 x +", u"1 2 %", u"1e5", u"1.2.3", u"-1",
                                      u"."};
  Calcul calcul;
  for (const String& forme : formes) {
    String result = u"unchanged";
    EXPECT_FALSE(calcul.Evalue(forme, result)) << Show(forme);
    EXPECT_EQ(result, u"unchanged") << Show(forme);
  }
}

}  // namespace
}  // namespace ferlan::kit
