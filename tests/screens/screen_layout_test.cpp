// Laying out and drawing a screen on the fixed-metric surface: a column is
// 105 wide, a line 312 high, so every position below can be worked out by
// hand from the labels' lengths (10.5 units a character).
#include <gtest/gtest.h>

#include <sstream>
#include <tuple>
#include <utility>

#include "screens/screens_fixture.hpp"

namespace ferlan::testing {
namespace {

class LayoutTest : public ScreenTest {
 protected:
  // A record's numbers after the layout: Identif Coul LC LcT LzT L ClT CzT CT LlT.
  std::string At(int i) {
    const RubRecord& r = Rub(i);
    std::ostringstream out;
    out << ToUtf8(r.Identif.Trimmed()) << " " << ToUtf8(r.Coul.Trimmed()) << " " << r.LC << " "
        << r.LcT << " " << r.LzT << " " << r.L << " " << r.ClT << " " << r.CzT << " " << r.CT << " "
        << r.LlT;
    return out.str();
  }
};

const String kWorkedScreen =
    u"[@COL10,[NOM,Nom du client,A,30],[CODE,Code,I0,5,ML],@COULR,"
    u"[DATEFAC,Date de facture,D,,S3],[TOTAL,Total,D2,12,,C,20,S]]";

TEST_F(LayoutTest, WorkedScreenGetsThePositionsItsTextWorksOut) {
  ky.AffPos(4);
  Zone().SetWidth(8000);
  const auto position = std::pair(Env().CourantX, Env().CourantY);
  EXPECT_EQ(Read(kWorkedScreen), u"[]");
  ASSERT_EQ(NbRub(), 4);
  // The widest label that starts a line is "Date de facture", 1575: both
  // line starters get 1575 + 105. CODE follows NOM's entry box by a column;
  // TOTAL is centred: (8000 - (2100 + 1470 + 105)) \ 2 = 2162.
  EXPECT_EQ(At(1), "NOM I 30 3150 3360 4 1050 2772 2835 1680");
  EXPECT_EQ(At(2), "CODE I 5 525 735 4 6237 6804 6867 525");
  EXPECT_EQ(At(3), "DATEFAC R 10 1050 1260 7 1050 2772 2835 1680");
  EXPECT_EQ(At(4), "TOTAL S 12 1260 1470 9 2162 4304 4367 2100");
  // Sized for TOTAL's line + 3 and the right edge of CODE, 7539, plus two
  // columns each side; then drawn, boxes 3 units above the line and 309 high.
  const std::string drawing =
      "Cadre3D 1 2 \"Nom du client\" 1245 1050 1680 309 \"3D\" 0 \"G\"\n"
      "Rectangle 3 1245 2772 3360 309\n"
      "Cadre3D 1 2 \"Code\" 1245 6237 525 309 \"3D\" 0 \"G\"\n"
      "Rectangle 3 1245 6804 735 309\n"
      "Cadre3D 1 3 \"Date de facture\" 2181 1050 1680 309 \"3D\" 0 \"G\"\n"
      "Rectangle 3 2181 2772 1260 309\n"
      "Cadre3D 4 2 \"Total\" 2805 2162 2100 309 \"3D\" 0 \"G\"\n"
      "Rectangle 3 2805 4304 1470 309\n";
  EXPECT_EQ(TakeLog(), "Hauteur 3744 False\nLargeur 7959 False\n" + drawing);
  EXPECT_TRUE(session.Records().reports.empty());
  EXPECT_EQ(std::pair(Env().CourantX, Env().CourantY), position) << "the display position moved";

  // Everything is resolved now: a second run draws the same screen, even
  // from another display position.
  ky.AffPos(20);
  ky.EcrSais(true);
  EXPECT_EQ(TakeLog(), "Hauteur 3744 False\nLargeur 7959 False\n" + drawing);
  EXPECT_EQ(At(4), "TOTAL S 12 1260 1470 9 2162 4304 4367 2100");
}

TEST_F(LayoutTest, SharedLabelWidthComesFromLineStartersWithAutomaticWidth) {
  Read(
      u"[[A,Label,A,5],[B,A label on the same line,A,5,ML],[C,Very long label,A,5],"
      u"[D,The longest label of them all,A,5,,,3],[OK,Accord,B,9],[N,Montant,D2,7]]");
  // 1575 ("Very long label") + 105: B follows on A's line with its own 2520
  // + 105, and D's given width does not count.
  EXPECT_EQ(std::tuple(Rub(1).LlT, Rub(2).LlT, Rub(3).LlT, Rub(4).LlT),
            std::tuple(1680, 2625, 1680, 315));
  EXPECT_EQ(Rub(1).CzT, Rub(3).CzT);
  EXPECT_EQ(Rub(2).ClT, Rub(1).CzT + Rub(1).LzT + 105);
  // A yes/no field is 5 columns wide in all; "D2" keeps its given width.
  EXPECT_EQ(std::tuple(Rub(5).LC, Rub(5).LzT, Rub(6).LC), std::tuple(3, 525, 7));
}

TEST_F(LayoutTest, SizingUsesTheLastFieldsLineBeforeAnyDrawing) {
  Read(u"[]");
  EXPECT_EQ(TakeLog(), "Hauteur 936 False\nLargeur 420 False\n");
  Read(u"[@NReDim]");
  EXPECT_EQ(TakeLog(), "Hauteur 0 True\nLargeur 420 True\n");
  // A last field above an earlier one: its line 4 + 3 sets the height. The
  // widest field ends at 105 + 210 + 42 + 735 = 1092.
  Read(u"[[A,a,A,5,10],[B,b,A,5,4]]");
  std::string log = TakeLog();
  EXPECT_TRUE(log.starts_with("Hauteur 2184 False\nLargeur 1512 False\nCadre3D")) << log;
  // "@NReDim" counts wherever it stands, matched on six letters in any case.
  Read(u"[[A,a,A,5,10],[B,b,A,5,4],@nredimXYZ]");
  log = TakeLog();
  EXPECT_TRUE(log.starts_with("Hauteur 1248 True\nLargeur 1512 True\nCadre3D")) << log;
}

TEST_F(LayoutTest, CentredFieldNarrowerSurfaceAndElementZero) {
  // The field's width is 210 + 735 + 105 = 1050; on a surface 1000 wide the
  // centred X would be below 1, so it is 1.
  Zone().SetWidth(1000);
  Read(u"[[A,a,A,5,,C]]");
  EXPECT_EQ(std::pair(Rub(1).ClT, Rub(1).CzT), std::pair(1.0F, 1.0F + 210 + 42));

  TakeLog();
  // Element 0 is never filled: it draws as blanks and zeros, and its blank
  // colour is reported by Couleur.
  ky.GénèreControl(0);
  EXPECT_EQ(TakeLog(),
            "Cadre3D -1 0 \"\" -3 0 0 309 \"3D\" 0 \"G\"\n"
            "Rectangle 3 -3 0 0 309\n");
  EXPECT_EQ(TakeReports(), std::vector<std::string>{"Couleur:  Code Couleur Inconnu"});
  ExpectPlatformError([&] { ky.GénèreControl(41); }, 9);
  ExpectPlatformError([&] { ky.GénèreControl(-1); }, 9);
}

}  // namespace
}  // namespace ferlan::testing
