// Blocks of lines: the worked block in numbers, syntax reports, the limit
// of 100 lines, and blocks of coloured messages.
#include <gtest/gtest.h>

#include <string>

#include "display/display_fixture.hpp"

namespace ferlan::testing {
namespace {

using BlockTest = DisplayTest;

constexpr Long kBack = 0x00F0F0F0;
constexpr Long kGrisTresClair = 0x00E0E0E0;

TEST_F(BlockTest, TheWorkedBlockMakesRoomThenClearsFramesAndWrites) {
  MeasuredCanvas& canvas = UseMeasuredSurface();
  canvas.widths[u"Bloc"] = 3000;  // measured without its trailing blanks
  Env().surface->SetWidth(9000);
  Env().surface->SetBackColor(kBack);
  ky.AffPos(5, 1);
  String lines = u"[Bloc  ,Fin]";
  ky.AffBloc(u"N", lines, u"O", true);
  EXPECT_EQ(lines, u"[]");
  // Room 3420 x 1872 is there: no sizing. X = (9000 - 3000) / 2.
  EXPECT_EQ(TakeLog(),
            "EffaceRect 105 1872 9000 2067 -1\nEffaceRect 105 2184 9000 2379 -1\n"
            "Pave 0 1868 9000 2496 " + Num(kBack) + "\n"
            "Rectangle " + Num(kGrisTresClair) + " 1868 2895 3210 624\n" +
                Written(3000, 1872, 3630, "Bloc  ") + Written(3000, 2184, 3315, "Fin"));
  EXPECT_EQ(Env().CourantX, 3315.0f);  // behind the last text
  EXPECT_TRUE(session.Records().reports.empty());
}

TEST_F(BlockTest, ABlockMakesRoomWhenTheSurfaceIsTooSmall) {
  SetInnerSize(2000, 2000);
  ky.AffPos(5, 1);
  String lines = u"[" + String(30, u'x') + u"]";  // 3150 wide
  ky.AffBloc(u"N", lines, u"N");
  // No frame allowance; WinLigne(5) high below line 5.
  const std::string log = TakeLog();
  EXPECT_EQ(log.rfind("Largeur 3150 False\nHauteur 3120 False\n", 0), 0u) << log;
  EXPECT_EQ(log.find("Rectangle"), std::string::npos);
  EXPECT_NE(log.find("Texte 0 1872 \"" + std::string(30, 'x') + "\" 0\n"), std::string::npos);
}

TEST_F(BlockTest, ASyntaxErrorIsReportedAndTheSameListIsDrawn) {
  ky.AffPos(2, 1);
  String lines = u"[a,,b]";
  ky.AffBloc(u"N", lines, u"N", false, false);
  EXPECT_EQ(TakeReports(),
            std::vector<std::string>{"AffBloc: Erreur de Syntaxe Liste : @ 4ème Caractère :@[a,@ ** "
                                     "Correct jusque là ** @,b]@** Incorrect à partir de là **@"});
  EXPECT_EQ(lines, u"[]");
  const std::string log = TakeLog();
  for (const char* line : {"Texte 5857 936 \"a\"", "Texte 5857 1248 \"\"", "Texte 5857 1560 \"b\""}) {
    EXPECT_NE(log.find(line), std::string::npos) << line;  // (11820 - 105) / 2
  }

  lines = u"x";
  ky.AffBloc(u"N", lines, u"N", false, false);
  EXPECT_EQ(TakeReports(),
            std::vector<std::string>{"AffBloc: Erreur de Syntaxe Liste : @ 1ème Caractère :@@ ** "
                                     "Correct jusque là ** @x@** Incorrect à partir de là **@"});
  EXPECT_EQ(lines, u"[]");
}

TEST_F(BlockTest, AHundredLinesAreTheMost) {
  String list;
  for (int i = 1; i <= 100; ++i) list += (i == 1 ? u"[" : u",") + NumberText(i);
  String hundred = list + u"]";
  ky.AffBloc(u"N", hundred, u"N", false, false);
  EXPECT_EQ(hundred, u"[]");
  String more = list + u",101]";
  ExpectPlatformError([&] { ky.AffBloc(u"N", more, u"N", false, false); }, 9);
  EXPECT_EQ(more, u"[101]");
}

TEST_F(BlockTest, AnEmptyBlockStillFramesAndClearsAStrip) {
  ky.AffPos(3, 1);
  String lines = u"[]";
  ky.AffBloc(u"N", lines, u"O", true, false);
  // No lines to clear; the strip is 4 x MargeY high, the frame two columns
  // wide and of no height, at half the surface.
  EXPECT_EQ(TakeLog(), "Pave 0 1244 11820 1248 " + Num(Zone().BackColor()) +
                           "\nRectangle " + Num(kGrisTresClair) + " 1244 5805 210 0\n");
}

TEST_F(BlockTest, ABlockOfColouredMessagesIsAlignedOnTheWidestLine) {
  ky.AffPos(2, 1);
  String lines = u"[[[B,Total :],[Rouge,12 500,G]],[[N,Fin de liste]]]";
  ky.AffBloc(u"Bleu", lines, u"N", false, false, true);
  // The wider line measures 735 + 1260: X = (11820 - 1995) / 2.
  const std::string log = TakeLog();
  for (const std::string& line :
       {"Texte 4912 936 \"Total :\" " + Num(Env().CouleurB), "Texte 5647 936 \"12 500\" " +
        Num(Env().Rouge), std::string("Texte 4912 1248 \"Fin de liste\" 0")}) {
    EXPECT_NE(log.find(line + "\n"), std::string::npos) << line << "\n" << log;
  }
  EXPECT_EQ(log.find("EffaceRect 105"), std::string::npos);  // lines are not cleared
  EXPECT_EQ(Zone().Font().Size(), 10.0f);
}

}  // namespace
}  // namespace ferlan::testing
