// Lines and columns: a pitch is 1.6 x HauteurTexte, a column TextWidth("T").
// Nothing is cached: the grid follows the font and surface of the moment.
#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "display/display_fixture.hpp"

namespace ferlan::testing {
namespace {

using GridGeometryTest = DisplayTest;

TEST_F(GridGeometryTest, LinesAndColumnsToSurfaceUnitsAndBack) {
  EXPECT_EQ(ky.WinLigne(2.5f), 780.0f);
  EXPECT_EQ(ky.WinCol(2.5f), 262.5f);
  // Lines tie up (1.5 and 2.5 lines up, -1.5 to -1), columns tie to even.
  for (auto [units, ligne, col] : std::vector<std::tuple<Single, Long, Long>>{
           {468, 2, 4}, {780, 3, 7}, {262.5f, 1, 2}, {367.5f, 1, 4}, {-468, -1, -4}}) {
    SCOPED_TRACE(units);
    EXPECT_EQ(ky.LigneWin(units), ligne);
    EXPECT_EQ(ky.ColWin(units), col);
  }
  SetInnerSize(1102.5f, 3276);  // 10.5 pitches up to 11 lines, 10.5 columns to even
  EXPECT_EQ(ky.NbLigne(), 11);
  EXPECT_EQ(ky.NbCol(), 10);
}

TEST_F(GridGeometryTest, HauteurTexteRoundsToEvenBeforeThePitch) {
  Zone().Font().SetSize(5);  // 97.5 high
  EXPECT_EQ(ky.HauteurTexte(), 98);
  EXPECT_EQ(ky.WinLigne(2.5f), 392.0f);  // not 390
  UseMeasuredSurface().height = 194.5f;
  EXPECT_EQ(ky.WinLigne(1), 310.4f);
}

TEST_F(GridGeometryTest, AffPosPlacesThroughTheSurfaceAndPosAffReadsBack) {
  ky.AffPos(3, 5);
  EXPECT_EQ(Zone().CurrentY(), 936.0f);
  EXPECT_EQ(Env().CourantY, 936.0f);
  ExpectAt(3, 5);
  ky.AffPosT(1000, 200);  // 3.2 lines, 1.9 columns
  ExpectAt(3, 2);
  Zone().Font().SetSize(5);  // line 3 at 470.4, column 3 at 157.5: rounded to even
  ky.AffPos(3, 3);
  EXPECT_EQ(Env().CourantY, 470.0f);
  EXPECT_EQ(Env().CourantX, 158.0f);
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
  Long l = 0;
  Long c = 0;
  ExpectPlatformError([&] { ky.PosAff(&l, &c); }, 6);
  EXPECT_EQ(l, 2);  // written before the column overflowed
}

}  // namespace
}  // namespace ferlan::testing
