#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <tuple>
#include <utility>

#include "ferlan/assert.hpp"
#include "ferlan/kysaisie.hpp"
#include "ferlan/runtime.hpp"

namespace ferlan {
namespace {

template <class Fn>
Long ErrorNumberOf(Fn&& fn) {
  try {
    fn();
  } catch (const PlatformError& e) {
    return e.Number();
  }
  return 0;
}

TEST(PlatformRulesTest, WholeNumbersRoundTiesToEvenAndOverflowAtTheTypesLimits) {
  const std::pair<Double, Integer> ties[] = {{2.5, 2}, {3.5, 4},    {-2.5, -2},
                                             {0.5, 0}, {2.4999, 2}, {-32768.5, -32768}};
  for (const auto& [in, out] : ties) EXPECT_EQ(CInt(in), out) << in;
  EXPECT_EQ(CLng(262.5), 262);
  EXPECT_EQ(CLng(1000.4), 1000);
  EXPECT_EQ(CLng(2147483647.0), 2147483647);
  EXPECT_EQ(ErrorNumberOf([] { CInt(32767.5); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { CInt(-32768.6); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { CLng(2147483647.5); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { CLng(std::nan("")); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { CSng(1e39); }), 6);
  // Checked arithmetic overflows at the types' limits too.
  EXPECT_EQ(AddInt(32766, 1), 32767);
  EXPECT_EQ(ErrorNumberOf([] { AddInt(32767, 1); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { SubInt(-32768, 1); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { MulInt(200, 200); }), 6);
  EXPECT_EQ(MulLng(200, 200), 40000);
  EXPECT_EQ(ErrorNumberOf([] { AddLng(std::numeric_limits<Long>::max(), 1); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { ToInteger(40000); }), 6);
  EXPECT_EQ(Divide(1, 4), 0.25);
  EXPECT_EQ(ErrorNumberOf([] { Divide(1, 0); }), 11);
  EXPECT_EQ(ErrorNumberOf([] { Divide(0, 0); }), 6);
}

TEST(PlatformRulesTest, CharactersGoThroughWindows1252) {
  // 0x81: a code the page leaves undefined.
  const std::pair<Long, String> chr[] = {
      {0x95, u"\u2022"}, {0x80, u"\u20AC"}, {0x81, u"\u0081"}, {0xE9, u"\u00E9"}};
  for (const auto& [code, text] : chr) EXPECT_EQ(Chr(code), text) << code;
  EXPECT_EQ(Asc(u"\u2022x"), 0x95);
  EXPECT_EQ(Asc(u"\u4E2D"), 63);  // not in the page
  for (Long code = 0; code < 256; ++code) EXPECT_EQ(Asc(Chr(code)), code);
  EXPECT_EQ(ErrorNumberOf([] { Chr(256); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { Chr(-1); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { Asc(u""); }), 5);
}

TEST(PlatformRulesTest, NumericValueTakesTheLongestLeadingNumber) {
  const std::pair<const char16_t*, Double> cases[] = {
      {u"12.5  ", 12.5}, {u"  -3", -3}, {u"AV12", 0}, {u"", 0},  {u".5", 0.5},
      {u"1e3x", 1000},   {u"1e", 1},    {u"+4", 4},   {u"-", 0}, {u"100/6.55957", 100}};
  for (const auto& [text, value] : cases) EXPECT_EQ(Val(text), value) << ToUtf8(text);
}

TEST(PlatformRulesTest, TextsCountFromOneAndFixedFieldsPadAndCut) {
  EXPECT_EQ(Mid(u"abcdef", 3, 2), u"cd");
  EXPECT_EQ(Mid(u"abc", 5), u"");
  EXPECT_EQ(ErrorNumberOf([] { Mid(u"abc", 0); }), 5);
  String s = u"      ";
  MidAssign(s, 3, 1, u"/");
  EXPECT_EQ(s, u"  /   ");
  String short_text = u"ab";
  EXPECT_EQ(ErrorNumberOf([&] { MidAssign(short_text, 3, 1, u"/"); }), 5);
  EXPECT_EQ(RTrim(u" a b  "), u" a b");
  EXPECT_EQ(UCase(u"oui été"), u"OUI ÉTÉ");
  EXPECT_EQ(InStr(1, u"abcabc", u"c"), 3);
  EXPECT_EQ(InStr(4, u"abcabc", u"c"), 6);

  Fixed<3> code{u"N12"};
  EXPECT_EQ(code.Text(), u"N12");
  code = u"A";
  EXPECT_EQ(code.Text(), u"A  ");
  EXPECT_EQ(code.Trimmed(), u"A");
  code = u"S123";
  EXPECT_EQ(code.Text(), u"S12");
}

TEST(PlatformRulesTest, Utf8RoundTripsAndRefusesEveryIllFormedSequenceOneReplacementAPart) {
  const String sample = u"d\u00E9j\u00E0 \u20AC \U0001F600 \0end";
  EXPECT_EQ(FromUtf8(ToUtf8(sample)), sample);
  EXPECT_EQ(ToUtf8(u"\xD800"), "\xEF\xBF\xBD");  // a lone surrogate
  // clang-format off
  const std::pair<std::string_view, String> cases[] = {
      {"\xC0\xAF", u"\uFFFD\uFFFD"},                   // overlong "/", C0 never leads
      {"\xC1\xBF", u"\uFFFD\uFFFD"},
      {"\xE0\x80\xAF", u"\uFFFD\uFFFD\uFFFD"},         // overlong in three bytes
      {"\xF0\x80\x80\xAF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // and in four
      {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},         // U+D800 encoded
      {"\xED\xBF\xBFz", u"\uFFFD\uFFFD\uFFFDz"},       // U+DFFF encoded
      {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // U+110000
      {"\xF5\x80", u"\uFFFD\uFFFD"}, {"\xFF", u"\uFFFD"},
      {"\xE2\x82", u"\uFFFD"}, {"\xC3", u"\uFFFD"},  // truncated: one part
      {"\xF0\x9F\x98x", u"\uFFFDx"}, {"\x80\xBF", u"\uFFFD\uFFFD"},
      {"\xED\x9F\xBF", u"\uD7FF"}, {"\xEE\x80\x80", u"\uE000"},
      {"\xF4\x8F\xBF\xBF", u"\U0010FFFF"}, {"\xC2\x80", u"\u0080"},
      {"\xE0\xA0\x80", u"\u0800"}, {"\xF0\x90\x80\x80", u"\U00010000"}};
  // clang-format on
  for (const auto& [bytes, text] : cases) EXPECT_EQ(FromUtf8(bytes), text) << ToUtf8(text);
}

// The platform's own numbers and texts, written out here rather than taken
// from the constructors under test.
TEST(PlatformErrorTextTest, EachErrorHasThePlatformsNumberAndText) {
  // clang-format off
  const std::tuple<PlatformError, Long, const char*> cases[] = {
      {PlatformError::InvalidCall(), 5, "Invalid procedure call or argument"},
      {PlatformError::InvalidCall("bad key"), 5, "Invalid procedure call or argument: bad key"},
      {PlatformError::Overflow(), 6, "Overflow"},
      {PlatformError::SubscriptOutOfRange(), 9, "Subscript out of range"},
      {PlatformError::DivisionByZero(), 11, "Division by zero"},
      {PlatformError::TypeMismatch(), 13, "Type mismatch"},
      {PlatformError::ObjectNotSet(), 91, "Object variable or With block variable not set"},
      {PlatformError::CannotCreateObject("Dessin"), 429,
           "ActiveX component can't create object: Dessin"},
      {PlatformError::MemberNotSupported("Nope"), 438,
           "Object doesn't support this property or method: Nope"},
      {PlatformError::ActionNotSupported("PNG pictures"), 445,
           "Object doesn't support this action: PNG pictures"},
      {PlatformError::ArgumentNotOptional(), 449, "Argument not optional"},
      {PlatformError::WrongArgumentCount(), 450,
           "Wrong number of arguments or invalid property assignment"},
      {PlatformError::Host("cairo", "out of memory"), 51, "cairo: out of memory"}};
  // clang-format on
  for (const auto& [error, number, text] : cases) {
    EXPECT_EQ(error.Number(), number) << text;
    EXPECT_EQ(error.Description(), text);
    EXPECT_STREQ(error.what(), text);
  }
}

TEST(AssertTest, ABrokenInvariantAbortsWithItsPlaceInDebugBuildsOnly) {
#if FERLAN_ASSERTIONS
  EXPECT_DEATH(FERLAN_ASSERT(1 + 1 == 3),
               "platform_rules_test.cpp:[0-9]+: FERLAN_ASSERT\\(1 \\+ 1 == 3\\) failed");
  // Apartments end innermost first.
  EXPECT_DEATH(
      {
        auto outer = std::make_unique<Apartment>(ClassRegistry{});
        Apartment inner{ClassRegistry{}};
        outer.reset();
      },
      "FERLAN_ASSERT\\(current_apartment_state == state_.get\\(\\)\\) failed");
#else
  int evaluated = 0;
  FERLAN_ASSERT(++evaluated == 5);
  EXPECT_EQ(evaluated, 0);
#endif
}

}  // namespace
}  // namespace ferlan
