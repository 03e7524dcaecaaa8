// Lines and columns: a pitch is 1.6 x HauteurTexte, a column TextWidth("T").
// Nothing is cached: the grid follows the font and surface of the moment.
#include <gtest/gtest.h>

#include <memory>
#include <tuple>
#include <vector>

#include "display/display_fixture.hpp"
#include "forms/form.hpp"

namespace ferlan::testing {
namespace {

using GridGeometryTest = DisplayTest;

TEST_F(GridGeometryTest, LinesAndColumnsToSurfaceUnitsAndBack) {
  EXPECT_EQ(ky.WinLigne(2.5f), 780.0f);
  EXPECT_EQ(ky.WinCol(2.5f), 262.5f);
  // Lines tie up (1.5 and 2.5 lines up, -1.5 to -1), columns tie to even.
  for (auto [units, ligne, col] : std::vector<std::tuple<Single, Long, Long>>{
           {468, 2, 4}, {780, 3, 7}, {262.5f, 1, 2}, {367.5f, 1, 4}, {-468, -1, -4}}) {
    EXPECT_EQ(std::tuple(ky.LigneWin(units), ky.ColWin(units)), std::tuple(ligne, col)) << units;
  }
  SetInnerSize(1102.5f, 3276);  // 10.5 pitches up to 11 lines, 10.5 columns to even
  EXPECT_EQ(std::tuple(ky.NbLigne(), ky.NbCol()), std::tuple(11, 10));
  // HauteurTexte rounds to even before the pitch is taken.
  Zone().Font().SetSize(5);  // 97.5 high
  EXPECT_EQ(ky.HauteurTexte(), 98);
  EXPECT_EQ(ky.WinLigne(2.5f), 392.0f);  // not 390
  UseMeasuredSurface().height = 194.5f;
  EXPECT_EQ(ky.WinLigne(1), 310.4f);
}

TEST_F(GridGeometryTest, AffPosPlacesThroughTheSurfaceAndPosAffReadsBack) {
  ky.AffPos(3, 5);
  EXPECT_EQ(std::pair(Zone().CurrentY(), Env().CourantY), std::pair(936.0F, 936.0F));
  ExpectAt(3, 5);
  ky.AffPosT(1000, 200);  // 3.2 lines, 1.9 columns
  ExpectAt(3, 2);
  Zone().Font().SetSize(5);  // line 3 at 470.4, column 3 at 157.5: rounded to even
  ky.AffPos(3, 3);
  EXPECT_EQ(std::pair(Env().CourantX, Env().CourantY), std::pair(158.0F, 470.0F));
  EXPECT_EQ(TakeLog(), "");  // placing draws nothing
}

TEST_F(GridGeometryTest, TheGridFollowsTheFontAndTheSurfaceOfTheMoment) {
  ky.AffPos(4, 10);  // (1248, 1050) stays; the grid moves
  Zone().Font().SetSize(20);
  ExpectAt(2, 5);
  auto other = session.NewPictureBox();
  other->Font().SetSize(5);
  Env().surface = other;
  ExpectAt(8, 20);  // 1248 / 156.8 = 7.96; 1050 / 52.5
}

TEST_F(GridGeometryTest, OverflowReachesTheCallerAndWhatWasWrittenStays) {
  SetInnerSize(40000 * 105.0f, 40000 * 312.0f);  // 40,000 lines and columns
  ExpectPlatformError([&] { ky.NbLigne(); }, 6);
  ExpectPlatformError([&] { ky.NbCol(); }, 6);
  EXPECT_EQ(ky.LigneWin(40000 * 312.0f), 40000);  // a Long
  ExpectPlatformError([&] { ky.ColWin(1e12f); }, 6);
  Env().CourantY = 624;
  Env().CourantX = 1e12f;
  Long l = 0, c = 0;
  ExpectPlatformError([&] { ky.PosAff(&l, &c); }, 6);
  EXPECT_EQ(l, 2);  // written before the column overflowed
}

// Clearing lines, entry boxes and the whole surface.
TEST_F(GridGeometryTest, LinesAreClearedOneTextHeightHighToTheRightEdge) {
  ky.AffPosT(50, 60);
  ky.EffaceLigne(3);  // from column 1
  ky.EffaceLigne(3, 0);
  ky.EffaceLigneColT(3, 52.5f);
  ky.EffaceLigne(40);  // below the surface: cleared all the same
  ky.EffaceLignes(2, 4);
  ky.EffaceLignes(4, 2);  // nothing
  EXPECT_EQ(TakeLog(), Cleared(936) + Cleared(936, 0) + Cleared(936, 52.5) + Cleared(12480) +
                           Cleared(624) + Cleared(936) + Cleared(1248));
  EXPECT_EQ(Zone().CurrentX(), 60.0f);  // the position is left alone
}

TEST_F(GridGeometryTest, EffaceZoneSaisieClearsInsideTheEntryBox) {
  ky.EffaceZoneSaisie(312, 1050, 2100);
  ky.EffaceZoneSaisie(624, 1050, 2100, 0x00FFFFFF);
  EXPECT_EQ(TakeLog(), "EffaceRect 1052 312 3147 506 -1\nEffaceRect 1052 624 3147 818 16777215\n");
  auto other = session.NewPictureBox();
  other->Font().SetSize(20);
  ky.EffaceZoneSaisie(100, 0, 1000, 255, other);  // with Env.ZoneAff's height
  EXPECT_EQ(dynamic_cast<headless::FixedCanvas&>(other->GetCanvas()).DescribeOps(),
            "FillBox 2 100 997 294 255\n");
}

TEST_F(GridGeometryTest, EffaceEcranClearsAndGoesToLineOneColumnOneOrUnderTheToolbar) {
  ky.AffPos(9, 9);
  ky.EffaceEcran();
  ky.EffaceEcran(true);
  EXPECT_EQ(TakeLog(), "Efface\nEfface\nReduit\n");
  EXPECT_EQ(std::pair(Env().CourantX, Env().CourantY), std::pair(105.0F, 312.0F));
  auto toolbar = std::dynamic_pointer_cast<ferlan::Control>(Form().Member("BarreOutils"));
  ASSERT_TRUE(toolbar);
  toolbar->SetVisible(true);  // 420 high: 420 + 195 / 2 = 517.5, to even
  ky.EffaceEcran();
  EXPECT_EQ(Env().CourantY, 518.0f);

  Env().form = std::make_shared<forms::Form>(1, 28800, 16200);  // no toolbar
  ky.AffPos(9, 9);
  ExpectPlatformError([&] { ky.EffaceEcran(true); }, 438);
  EXPECT_EQ(TakeLog(), "Efface\nEfface\nReduit\n");  // the failure comes after the clearing
  EXPECT_EQ(Env().CourantY, 2808.0f);
}

}  // namespace
}  // namespace ferlan::testing
