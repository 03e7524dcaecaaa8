// Lines and columns on the fixed-metric surface: TextHeight(" ") is 195 and
// TextWidth("T") 105 at size 10, so a line pitch is 312 and a column 105.
#include <gtest/gtest.h>

#include <memory>

#include "display/measured_canvas.hpp"
#include "ferlan/kysaisie.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {
namespace {

class GridGeometryTest : public SessionTest {
 protected:
  // Gives the surface an inner size, whatever its border.
  void SetInnerSize(Single width, Single height) {
    Zone().SetWidth(width + Zone().Border());
    Zone().SetHeight(height + Zone().Border());
  }
  // Puts a surface of the given measures in Env.ZoneAff.
  std::shared_ptr<Measures> UseMeasuredSurface(Single width = 11820, Single height = 8490) {
    auto measures = std::make_shared<Measures>();
    Env().surface = MeasuredSurface(measures, width, height);
    return measures;
  }
  KySaisie ky;
};

TEST_F(GridGeometryTest, WorkedFiguresOfTheFixedSurface) {
  EXPECT_EQ(ky.HauteurTexte(), 195);
  EXPECT_EQ(ky.LargeurTexte(u"T"), 105.0f);
  EXPECT_EQ(ky.LargeurTexte(u"abcd"), 420.0f);

  struct Case {
    Single arg;
    Single win_ligne;
    Single win_col;
  };
  const Case cases[] = {
      {0, 0, 0}, {1, 312, 105}, {2.5f, 780, 262.5f}, {3, 936, 315}, {-1, -312, -105},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.arg);
    EXPECT_EQ(ky.WinLigne(c.arg), c.win_ligne);
    EXPECT_EQ(ky.WinCol(c.arg), c.win_col);
  }

  // Lines tie up, columns tie to even.
  struct Back {
    Single units;
    Long ligne;
    Long col;
  };
  const Back backs[] = {
      {468, 2, 4},       // 1.5 lines -> 2; 4.457 columns -> 4
      {780, 3, 7},       // 2.5 lines -> 3; 7.43 columns -> 7
      {262.5f, 1, 2},    // 2.5 columns -> 2
      {367.5f, 1, 4},    // 3.5 columns -> 4
      {467.9f, 1, 4},    // just under 1.5 lines -> 1
      {-468, -1, -4},    // -1.5 lines -> -1 (floor of -1.0)
      {-262.5f, -1, -2}, // -2.5 columns -> -2
  };
  for (const Back& b : backs) {
    SCOPED_TRACE(b.units);
    EXPECT_EQ(ky.LigneWin(b.units), b.ligne);
    EXPECT_EQ(ky.ColWin(b.units), b.col);
  }
}

TEST_F(GridGeometryTest, HauteurTexteRoundsBeforeThePitch) {
  auto measures = UseMeasuredSurface();
  struct Case {
    Single text_height;
    Long hauteur;
    Single pitch;
  };
  const Case cases[] = {
      {195.5f, 196, 313.6f},  // tie to even: up
      {194.5f, 194, 310.4f},  // tie to even: down
      {195.4f, 195, 312},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text_height);
    measures->height = c.text_height;
    EXPECT_EQ(ky.HauteurTexte(), c.hauteur);
    EXPECT_EQ(ky.WinLigne(1), c.pitch);
  }

  // On the fixed surface, size 5 measures 97.5, which rounds to 98 first.
  Env().surface = session.SurfaceRef();
  Zone().Font().SetSize(5);
  EXPECT_EQ(ky.HauteurTexte(), 98);
  EXPECT_EQ(ky.WinLigne(1), 156.8f);
  EXPECT_EQ(ky.WinLigne(2.5f), 392.0f);
}

TEST_F(GridGeometryTest, NbLigneAndNbColRoundToNearest) {
  struct Case {
    Single inner_height;
    Integer lines;
    Single inner_width;
    Integer columns;
  };
  const Case cases[] = {
      {3244.8f, 10, 1092, 10},  // 10.4 pitches; 10.4 columns
      {3276, 11, 1102.5f, 10},  // 10.5 pitches go up; 10.5 columns go to even
      {3400, 11, 1207.5f, 12},  // 10.9 pitches; 11.5 columns go to even
      {0, 0, 0, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.inner_height);
    SetInnerSize(c.inner_width, c.inner_height);
    EXPECT_EQ(ky.NbLigne(), c.lines);
    EXPECT_EQ(ky.NbCol(), c.columns);
  }
}

TEST_F(GridGeometryTest, AffPosGoesThroughTheSurfaceAndPosAffReadsItBack) {
  ky.AffPos(3, 5);
  EXPECT_EQ(Zone().CurrentY(), 936.0f);
  EXPECT_EQ(Zone().CurrentX(), 525.0f);
  EXPECT_EQ(Env().CourantY, 936.0f);
  EXPECT_EQ(Env().CourantX, 525.0f);
  Long l = -7;
  Long c = -7;
  ky.PosAff(&l, &c);
  EXPECT_EQ(l, 3);
  EXPECT_EQ(c, 5);

  // The default column is 1.
  ky.AffPos(2);
  EXPECT_EQ(Env().CourantX, 105.0f);
  EXPECT_EQ(Env().CourantY, 624.0f);

  // Surface units straight, then the nearest line and column.
  ky.AffPosT(1000, 200);
  EXPECT_EQ(Zone().CurrentY(), 1000.0f);
  EXPECT_EQ(Env().CourantX, 200.0f);
  ky.PosAff(&l, &c);
  EXPECT_EQ(l, 3);  // 3.2 lines
  EXPECT_EQ(c, 2);  // 1.9 columns

  // A pitch of 156.8 puts line 3 at 470.4, rounded to 470 before it goes
  // to the surface.
  Zone().Font().SetSize(5);
  ky.AffPos(3, 3);
  EXPECT_EQ(Env().CourantY, 470.0f);
  EXPECT_EQ(Env().CourantX, 158.0f);  // 157.5 to even
  ky.PosAff(&l, &c);
  EXPECT_EQ(l, 3);
  EXPECT_EQ(c, 3);
  // Nothing is drawn by placing.
  EXPECT_EQ(TakeLog(), "");
}

TEST_F(GridGeometryTest, TheGridFollowsTheFontAndTheSurfaceOfTheMoment) {
  ky.AffPos(4, 10);
  Long l = 0;
  Long c = 0;
  // The position stays in surface units (1248, 1050); the grid moves.
  Zone().Font().SetSize(20);
  ky.PosAff(&l, &c);
  EXPECT_EQ(l, 2);  // 1248 / 624
  EXPECT_EQ(c, 5);  // 1050 / 210
  EXPECT_EQ(ky.WinLigne(1), 624.0f);

  // Another surface in Env.ZoneAff: the next call measures it, and the
  // display position in Env does not move.
  auto other = session.NewPictureBox();
  other->Font().SetSize(5);
  Env().surface = other;
  EXPECT_EQ(ky.HauteurTexte(), 98);
  ky.PosAff(&l, &c);
  EXPECT_EQ(l, 8);   // 1248 / 156.8 = 7.96
  EXPECT_EQ(c, 20);  // 1050 / 52.5
  EXPECT_EQ(Env().CourantY, 1248.0f);
}

TEST_F(GridGeometryTest, AZeroMetricIsADivisionError) {
  auto measures = UseMeasuredSurface();
  measures->height = 0.4f;  // HauteurTexte 0, so WinLigne(1) is 0
  EXPECT_EQ(ky.WinLigne(7), 0.0f);
  ExpectPlatformError([&] { ky.LigneWin(100); }, 11);
  ExpectPlatformError([&] { ky.LigneWin(0); }, 6);  // 0 / 0
  ExpectPlatformError([&] { ky.NbLigne(); }, 11);
  Long l = -7;
  ExpectPlatformError([&] { ky.PosAff(&l); }, 6);  // CourantY is 0
  EXPECT_EQ(l, -7);

  measures->height.reset();
  measures->widths[u"T"] = 0;
  EXPECT_EQ(ky.WinCol(3), 0.0f);
  ExpectPlatformError([&] { ky.ColWin(5); }, 11);
  ExpectPlatformError([&] { ky.NbCol(); }, 11);
  // The line is written before the column fails, as a ByRef would be.
  Env().CourantY = 936;
  Env().CourantX = 5;
  Long c = -7;
  ExpectPlatformError([&] { ky.PosAff(&l, &c); }, 11);
  EXPECT_EQ(l, 3);
  EXPECT_EQ(c, -7);
}

TEST_F(GridGeometryTest, CountsBeyondTheirTypeOverflow) {
  // 40,000 lines and columns do not fit an Integer.
  SetInnerSize(40000 * 105.0f, 40000 * 312.0f);
  ExpectPlatformError([&] { ky.NbLigne(); }, 6);
  ExpectPlatformError([&] { ky.NbCol(); }, 6);
  EXPECT_EQ(ky.LigneWin(40000 * 312.0f), 40000);

  // Beyond a Long.
  ExpectPlatformError([&] { ky.LigneWin(1e12f); }, 6);
  ExpectPlatformError([&] { ky.ColWin(1e12f); }, 6);
  ExpectPlatformError([&] { ky.AffPos(2'000'000'000); }, 6);
  Env().CourantY = 624;
  Env().CourantX = 1e12f;
  Long l = 0;
  Long c = 0;
  ExpectPlatformError([&] { ky.PosAff(&l, &c); }, 6);
  EXPECT_EQ(l, 2);  // written before the column overflowed
}

TEST_F(GridGeometryTest, NoSurfaceIsAnObjectError) {
  Env().surface = nullptr;
  ExpectPlatformError([&] { ky.HauteurTexte(); }, 91);
  ExpectPlatformError([&] { ky.WinCol(1); }, 91);
  ExpectPlatformError([&] { ky.AffPosT(1, 1); }, 91);
}

}  // namespace
}  // namespace ferlan::testing
