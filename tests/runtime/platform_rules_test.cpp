#include <cmath>
#include <limits>
#include <memory>

#include <gtest/gtest.h>

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

TEST(PlatformRulesTest, WholeNumberConversionsRoundTiesToEvenAndOverflow) {
  struct Case { Double in; Integer out; };
  for (const Case& c : {Case{2.5, 2}, Case{3.5, 4}, Case{-2.5, -2}, Case{0.5, 0},
                        Case{2.4999, 2}, Case{-32768.5, -32768}}) {
    EXPECT_EQ(CInt(c.in), c.out) << c.in;
  }
  EXPECT_EQ(CLng(262.5), 262);
  EXPECT_EQ(CLng(1000.4), 1000);
  EXPECT_EQ(CLng(2147483647.0), 2147483647);
  EXPECT_EQ(ErrorNumberOf([] { CInt(32767.5); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { CInt(-32768.6); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { CLng(2147483647.5); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { CLng(std::nan("")); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { CSng(1e39); }), 6);
}

TEST(PlatformRulesTest, CheckedArithmeticRaisesOverflowAtTheTypesLimits) {
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
  EXPECT_EQ(Chr(0x95), u"\u2022");
  EXPECT_EQ(Chr(0x80), u"\u20AC");
  EXPECT_EQ(Chr(0x81), u"\u0081");  // a code the page leaves undefined
  EXPECT_EQ(Chr(0xE9), u"\u00E9");
  EXPECT_EQ(Asc(u"\u20AC"), 128);
  EXPECT_EQ(Asc(u"\u2022x"), 0x95);
  EXPECT_EQ(Asc(u"\u4E2D"), 63);  // not in the page
  for (Long code = 0; code < 256; ++code) EXPECT_EQ(Asc(Chr(code)), code);
  EXPECT_EQ(ErrorNumberOf([] { Chr(256); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { Chr(-1); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { Asc(u""); }), 5);
}

TEST(PlatformRulesTest, NumericValueTakesTheLongestLeadingNumber) {
  struct Case { const char16_t* text; Double value; };
  for (const Case& c : {Case{u"12.5  ", 12.5}, Case{u"  -3", -3}, Case{u"AV12", 0},
                        Case{u"", 0}, Case{u".5", 0.5}, Case{u"1e3x", 1000}, Case{u"1e", 1},
                        Case{u"+4", 4}, Case{u"-", 0}, Case{u"100/6.55957", 100}}) {
    EXPECT_EQ(Val(c.text), c.value) << ToUtf8(c.text);
  }
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

TEST(PlatformRulesTest, Utf8RoundTripsEveryTextWithoutLoneSurrogates) {
  const String text = u"d\u00E9j\u00E0 \u20AC \U0001F600 \0end";
  EXPECT_EQ(FromUtf8(ToUtf8(text)), text);
  EXPECT_EQ(FromUtf8("\xC3"), u"\uFFFD");  // truncated sequence
  EXPECT_EQ(ToUtf8(u"\xD800"), "\xEF\xBF\xBD");
}

TEST(PlatformRulesTest, Utf8RefusesEveryIllFormedSequenceOneReplacementAPart) {
  struct Case {
    std::string_view bytes;
    String text;
  };
  // clang-format off
  for (const Case& c : {
           Case{"\xC0\xAF", u"\uFFFD\uFFFD"},                   // overlong "/", C0 never leads
           Case{"\xC1\xBF", u"\uFFFD\uFFFD"},
           Case{"\xE0\x80\xAF", u"\uFFFD\uFFFD\uFFFD"},         // overlong in three bytes
           Case{"\xF0\x80\x80\xAF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // and in four
           Case{"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},         // U+D800 encoded
           Case{"\xED\xBF\xBFz", u"\uFFFD\uFFFD\uFFFDz"},       // U+DFFF encoded
           Case{"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // U+110000
           Case{"\xF5\x80", u"\uFFFD\uFFFD"}, Case{"\xFF", u"\uFFFD"},
           Case{"\xE2\x82", u"\uFFFD"},                        // truncated: one part
           Case{"\xF0\x9F\x98x", u"\uFFFDx"}, Case{"\x80\xBF", u"\uFFFD\uFFFD"},
           Case{"\xED\x9F\xBF", u"\uD7FF"}, Case{"\xEE\x80\x80", u"\uE000"},
           Case{"\xF4\x8F\xBF\xBF", u"\U0010FFFF"}, Case{"\xC2\x80", u"\u0080"},
           Case{"\xE0\xA0\x80", u"\u0800"}, Case{"\xF0\x90\x80\x80", u"\U00010000"}}) {
    // clang-format on
    EXPECT_EQ(FromUtf8(c.bytes), c.text) << ToUtf8(c.text);
  }
}

// The platform's own numbers and texts, written out here rather than taken
// from the constructors under test.
TEST(PlatformErrorTextTest, EachErrorHasThePlatformsNumberAndText) {
  struct Case {
    PlatformError error;
    Long number;
    const char* text;
  };
  // clang-format off
  for (const Case& c : {
      Case{PlatformError::InvalidCall(), 5, "Invalid procedure call or argument"},
      Case{PlatformError::InvalidCall("bad key"), 5, "Invalid procedure call or argument: bad key"},
      Case{PlatformError::Overflow(), 6, "Overflow"},
      Case{PlatformError::SubscriptOutOfRange(), 9, "Subscript out of range"},
      Case{PlatformError::DivisionByZero(), 11, "Division by zero"},
      Case{PlatformError::TypeMismatch(), 13, "Type mismatch"},
      Case{PlatformError::ObjectNotSet(), 91, "Object variable or With block variable not set"},
      Case{PlatformError::CannotCreateObject("Dessin"), 429,
           "ActiveX component can't create object: Dessin"},
      Case{PlatformError::MemberNotSupported("Nope"), 438,
           "Object doesn't support this property or method: Nope"},
      Case{PlatformError::ActionNotSupported("PNG pictures"), 445,
           "Object doesn't support this action: PNG pictures"},
      Case{PlatformError::ArgumentNotOptional(), 449, "Argument not optional"},
      Case{PlatformError::WrongArgumentCount(), 450,
           "Wrong number of arguments or invalid property assignment"},
      Case{PlatformError::Host("cairo", "out of memory"), 51, "cairo: out of memory"}}) {
    // clang-format on
    EXPECT_EQ(c.error.Number(), c.number) << c.text;
    EXPECT_EQ(c.error.Description(), c.text);
    EXPECT_STREQ(c.error.what(), c.text);
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
