// The line flow AffLig / AffL / AffSL on the fixed surface: 27 lines, so the
// flow writes on lines 1 to 26 and pages beyond.
#include <gtest/gtest.h>

#include "ferlan/kysaisie.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {
namespace {

class LineFlowTest : public SessionTest {
 protected:
  void SetUp() override { SetInnerSize(11820, 8490); }
  void SetInnerSize(Single width, Single height) {
    Zone().SetWidth(width + Zone().Border());
    Zone().SetHeight(height + Zone().Border());
  }
  void ExpectAt(Long line, Long column) {
    Long l = 0;
    Long c = 0;
    ky.PosAff(&l, &c);
    EXPECT_EQ(l, line);
    EXPECT_EQ(c, column);
  }
  KySaisie ky;
};

TEST_F(LineFlowTest, AtColumnOneTheLineIsClearedWrittenAndLeft) {
  ASSERT_EQ(ky.NbLigne(), 27);
  ky.AffPos(3, 1);
  Long l = -5;  // ignored on entry
  ky.AffLig(u"N", u"abc", &l);
  EXPECT_EQ(TakeLog(),
            "EffaceRect 105 936 11820 1131 -1\n"
            "EffaceRect 105 936 420 1130 -1\n"
            "Pave 105 936 420 1129 -1\n"
            "Texte 105 936 \"abc\" 0\n");
  EXPECT_EQ(l, 4);
  EXPECT_EQ(Env().CourantY, 1248.0f);
  EXPECT_EQ(Env().CourantX, 105.0f);
}

TEST_F(LineFlowTest, InTheMiddleOfALineTheTextContinuesItAndTheNextLineIsCleared) {
  ky.AffPos(3, 1);
  ky.Aff(u"N", u"abc");
  TakeLog();
  ky.AffL(u"def");
  // Line 4 is cleared, yet "def" goes behind "abc" on line 3.
  EXPECT_EQ(TakeLog(),
            "EffaceRect 105 1248 11820 1443 -1\n"
            "EffaceRect 420 936 735 1130 -1\n"
            "Pave 420 936 735 1129 -1\n"
            "Texte 420 936 \"def\" 0\n");
  ExpectAt(4, 1);
}

TEST_F(LineFlowTest, BeyondNbLigneLessOneThePageIsClearedAndTheFlowRestartsAtLineOne) {
  ky.AffPos(26, 1);
  ky.AffL(u"x");
  EXPECT_EQ(TakeLog(),
            "EffaceRect 105 8112 11820 8307 -1\n"
            "EffaceRect 105 8112 210 8306 -1\n"
            "Pave 105 8112 210 8305 -1\n"
            "Texte 105 8112 \"x\" 0\n");
  ExpectAt(27, 1);

  Long l = 0;
  ky.AffLig(u"N", u"y", &l);
  EXPECT_EQ(TakeLog(),
            "Efface\n"
            "EffaceRect 105 312 11820 507 -1\n"
            "EffaceRect 105 312 210 506 -1\n"
            "Pave 105 312 210 505 -1\n"
            "Texte 105 312 \"y\" 0\n");
  EXPECT_EQ(l, 2);
  ExpectAt(2, 1);
}

TEST_F(LineFlowTest, InTheMiddleOfTheLastLineTheTextGoesToANewPage) {
  ky.AffPos(26, 5);
  Long l = 0;
  ky.AffLig(u"N", u"z", &l);
  EXPECT_EQ(TakeLog(),
            "Efface\n"
            "EffaceRect 105 312 11820 507 -1\n"
            "EffaceRect 105 312 210 506 -1\n"
            "Pave 105 312 210 505 -1\n"
            "Texte 105 312 \"z\" 0\n");
  EXPECT_EQ(l, 2);
}

TEST_F(LineFlowTest, AffSLWritesBlankLines) {
  ky.AffPos(5, 1);
  ky.AffSL(3);
  ExpectAt(8, 1);
  EXPECT_EQ(TakeLog(),
            "EffaceRect 105 1560 11820 1755 -1\n"
            "EffaceRect 105 1560 105 1754 -1\n"
            "Pave 105 1560 105 1753 -1\n"
            "Texte 105 1560 \"\" 0\n"
            "EffaceRect 105 1872 11820 2067 -1\n"
            "EffaceRect 105 1872 105 2066 -1\n"
            "Pave 105 1872 105 2065 -1\n"
            "Texte 105 1872 \"\" 0\n"
            "EffaceRect 105 2184 11820 2379 -1\n"
            "EffaceRect 105 2184 105 2378 -1\n"
            "Pave 105 2184 105 2377 -1\n"
            "Texte 105 2184 \"\" 0\n");

  ky.AffSL(0);
  ky.AffSL(-2);
  EXPECT_EQ(TakeLog(), "");
  ExpectAt(8, 1);

  // From line NbLigne, the first blank line pages.
  ky.AffPos(27, 1);
  ky.AffSL(2);
  ExpectAt(3, 1);
  EXPECT_EQ(TakeLog().substr(0, 7), "Efface\n");
}

TEST_F(LineFlowTest, AnOverflowOfNbLigneKeepsTheLineAlreadyRead) {
  // 40,000 lines: NbLigne overflows an Integer at the page test.
  SetInnerSize(11820, 40000 * 312.0f);
  ky.AffPos(3, 1);
  Long l = -5;
  ExpectPlatformError([&] { ky.AffLig(u"N", u"abc", &l); }, 6);
  EXPECT_EQ(l, 3);  // PosAff had written it
  EXPECT_EQ(TakeLog(), "");
}

}  // namespace
}  // namespace ferlan::testing
