// AfficheCentre and MesBasEcran on the fixed surface: 11820 wide inside,
// 27 lines, pitch 312, column 105.
#include <gtest/gtest.h>

#include <string>

#include "ferlan/kysaisie.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {
namespace {

class CentredTextTest : public SessionTest {
 protected:
  void SetUp() override { SetInnerSize(11820, 8490); }
  void SetInnerSize(Single width, Single height) {
    Zone().SetWidth(width + Zone().Border());
    Zone().SetHeight(height + Zone().Border());
  }
  KySaisie ky;
};

TEST_F(CentredTextTest, CentresOnTheLineAndGivesTheEndInSurfaceUnits) {
  Long fin = 0;
  ky.AfficheCentre(5, u"N", u"abcd", true, &fin);
  // The line is cleared from column 1, then (11820 - 420) / 2 = 5700.
  EXPECT_EQ(TakeLog(),
            "EffaceRect 105 1560 11820 1755 -1\n"
            "EffaceRect 5700 1560 6120 1754 -1\n"
            "Pave 5700 1560 6120 1753 -1\n"
            "Texte 5700 1560 \"abcd\" 0\n");
  EXPECT_EQ(fin, 6120);

  // 11295 free: halved dropping the remainder.
  ky.AfficheCentre(6, u"N", u"abcde", false, &fin);
  EXPECT_EQ(TakeLog(),
            "EffaceRect 5647 1872 6172 2066 -1\n"
            "Pave 5647 1872 6172 2065 -1\n"
            "Texte 5647 1872 \"abcde\" 0\n");
  EXPECT_EQ(fin, 6172);
}

TEST_F(CentredTextTest, AnEmptyMessageOnlyClearsTheLine) {
  ky.AffPos(2, 3);
  Long fin = 77;
  ky.AfficheCentre(5, u"N", u"", true, &fin);
  EXPECT_EQ(TakeLog(), "EffaceRect 105 1560 11820 1755 -1\n");
  EXPECT_EQ(fin, 77);
  ky.AfficheCentre(5, u"N", u"", false, &fin);
  EXPECT_EQ(TakeLog(), "");
  EXPECT_EQ(fin, 77);
  EXPECT_EQ(Env().CourantY, 624.0f);
  EXPECT_EQ(Env().CourantX, 315.0f);
}

TEST_F(CentredTextTest, ANarrowSurfaceGrowsAndKeepsTheWholeText) {
  const std::string text(120, 'x');  // 12600 wide
  ky.AfficheCentre(2, u"N", FromUtf8(text), false);
  // Widened to 1 + 12600 plus two columns each side, the form with it;
  // then (13021 - 12600) / 2 = 210.
  EXPECT_EQ(TakeLog(),
            "Hauteur 8424 False\n"
            "Largeur 13021 False\n"
            "Recadre\n"
            "EffaceRect 210 624 12810 818 -1\n"
            "Pave 210 624 12810 817 -1\n"
            "Texte 210 624 \"" + text + "\" 0\n");
}

TEST_F(CentredTextTest, OnlyASurfaceNearTheScreenWidthCutsTheText) {
  // The kit's Dessin always grows the surface enough; a negative margin of
  // the host's is what leaves a text wider than the surface here.
  Env().MargeX = -1000;

  // 26000 is past 0.9 of the 28800 of the screen: 250 characters (26250)
  // lose three at the end, down to 25935.
  SetInnerSize(26000, 8490);
  Long fin = 0;
  ky.AfficheCentre(3, u"N", FromUtf8(std::string(250, 'y')), false, &fin);
  const std::string kept(247, 'y');
  EXPECT_EQ(TakeLog(),
            "EffaceRect 32 936 25967 1130 -1\n"
            "Pave 32 936 25967 1129 -1\n"
            "Texte 32 936 \"" + kept + "\" 0\n");
  EXPECT_EQ(fin, 25967);

  // 25000 is below it: the text stays whole and starts left of the edge.
  SetInnerSize(25000, 8490);
  const std::string whole(240, 'y');  // 25200
  ky.AfficheCentre(3, u"N", FromUtf8(whole), false);
  EXPECT_EQ(TakeLog(),
            "EffaceRect -100 936 25100 1130 -1\n"
            "Pave -100 936 25100 1129 -1\n"
            "Texte -100 936 \"" + whole + "\" 0\n");
}

TEST_F(CentredTextTest, ALineBeyondIntegerOverflowsBeforeAnything) {
  ExpectPlatformError([&] { ky.AfficheCentre(40000, u"N", u"abc"); }, 6);
  EXPECT_EQ(TakeLog(), "");
}

TEST_F(CentredTextTest, MesBasEcranWritesOnNbLigneLessTwoAndReturnsToTheGrid) {
  // Off the grid on purpose: 1000 is line 3.2, 200 column 1.9.
  ky.AffPosT(1000, 200);
  ky.MesBasEcran(u"N", u"Fin");
  EXPECT_EQ(TakeLog(),
            "EffaceRect 105 7800 11820 7995 -1\n"
            "EffaceRect 5752 7800 6067 7994 -1\n"
            "Pave 5752 7800 6067 7993 -1\n"
            "Texte 5752 7800 \"Fin\" 0\n");
  EXPECT_EQ(Env().CourantY, 936.0f);
  EXPECT_EQ(Env().CourantX, 210.0f);

  // An empty message erases the bottom message; the position stays.
  ky.MesBasEcran(u"N", u"");
  EXPECT_EQ(TakeLog(), "EffaceRect 105 7800 11820 7995 -1\n");
  EXPECT_EQ(Env().CourantY, 936.0f);
  EXPECT_EQ(Env().CourantX, 210.0f);
}

}  // namespace
}  // namespace ferlan::testing
