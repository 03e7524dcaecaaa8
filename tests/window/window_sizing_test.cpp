// Sizing the surface in lines and columns. The session's form is 12000 x 9000
// (11880 x 8550 inside) with a hidden toolbar 420 high; the surface fills it
// and has a border of 60, so it starts 11820 x 8490 inside.
#include <gtest/gtest.h>

#include <memory>

#include "ferlan/kysaisie.hpp"
#include "forms/form.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {
namespace {

class WindowSizingTest : public SessionTest {
 protected:
  std::shared_ptr<ferlan::Control> Toolbar() {
    return std::dynamic_pointer_cast<ferlan::Control>(Form().Member("BarreOutils"));
  }
  KySaisie ky;
};

TEST_F(WindowSizingTest, InitKyFPreparesFormAndFont) {
  Form().SetBorderStyle(0);
  Zone().Font().SetSize(7);
  ky.InitKyF();
  EXPECT_TRUE(Form().KeyPreview());
  EXPECT_EQ(Form().BorderStyle(), 2);
  EXPECT_TRUE(Zone().Font().Bold());
  // TaillePolice 0: the size is Dessin's.
  EXPECT_EQ(TakeLog(), "TaillePolice\n");
  EXPECT_EQ(Zone().Font().Size(), 10.0f);

  Env().TaillePolice = 12;
  ky.InitKyF();
  EXPECT_EQ(TakeLog(), "");
  EXPECT_EQ(Zone().Font().Size(), 12.0f);
}

TEST_F(WindowSizingTest, ANegativeSizeGoesToTheFontWhichRefusesIt) {
  Env().TaillePolice = -3;
  ExpectPlatformError([&] { ky.InitKyF(); }, 5);
  // What was set before stays set.
  EXPECT_TRUE(Form().KeyPreview());
  EXPECT_TRUE(Zone().Font().Bold());
  EXPECT_EQ(Zone().Font().Size(), 10.0f);
}

TEST_F(WindowSizingTest, DimensionFeuilleMakesLinesAndEightyFourColumnsAndCentres) {
  ky.DimensionFeuille(25);
  EXPECT_EQ(TakeLog(), "Hauteur 7800 False\nLargeur 8820 False\n");
  EXPECT_EQ(Zone().ScaleHeight(), ky.WinLigne(25));
  EXPECT_EQ(Zone().ScaleWidth(), ky.WinCol(84));
  // Centred in the form, which did not need to grow.
  EXPECT_EQ(Zone().Left(), 1500.0f);  // (11880 - 8880) / 2
  EXPECT_EQ(Zone().Top(), 345.0f);    // (8550 - 7860) / 2
  EXPECT_EQ(Form().Width(), 12000.0f);
  EXPECT_EQ(Form().Height(), 9000.0f);
}

TEST_F(WindowSizingTest, MinusOneLeavesTheWidthAndTheSurfaceIsCentredAllTheSame) {
  ky.DimensionFeuille(25, -1);
  EXPECT_EQ(TakeLog(), "Hauteur 7800 False\n");
  EXPECT_EQ(Zone().ScaleWidth(), 11820.0f);
  EXPECT_EQ(Zone().Left(), 0.0f);
  EXPECT_EQ(Zone().Top(), 345.0f);
}

TEST_F(WindowSizingTest, QueSiInfKeepsALargerSurfaceButStillCentres) {
  Zone().SetLeft(123);
  Zone().SetTop(456);
  ky.DimensionFeuilleLT(20, 5000, true);
  EXPECT_EQ(TakeLog(), "Hauteur 6240 True\nLargeur 5420 True\n");
  EXPECT_EQ(Zone().ScaleHeight(), 8490.0f);
  EXPECT_EQ(Zone().ScaleWidth(), 11820.0f);
  EXPECT_EQ(Zone().Left(), 0.0f);
  EXPECT_EQ(Zone().Top(), 0.0f);
}

TEST_F(WindowSizingTest, ASurfaceLargerThanTheFormGrowsTheForm) {
  ky.DimensionFeuille(30, 120);
  EXPECT_EQ(TakeLog(), "Hauteur 9360 False\nLargeur 13020 False\nRecadre\n");
  // Height: 9000 - 8550 + 9420 (the surface with its border) + 15 x MargeY.
  EXPECT_EQ(Form().Height(), 9885.0f);
  // Width: no margin.
  EXPECT_EQ(Form().ScaleWidth(), Zone().Width());
  EXPECT_EQ(Zone().Left(), 0.0f);
  EXPECT_EQ(Zone().Top(), 7.5f);  // (9435 - 9420) / 2, in floating point
}

TEST_F(WindowSizingTest, AVisibleToolbarTakesItsHeightFromTheForm) {
  Toolbar()->SetVisible(true);
  Env().MargeY = 2;
  ky.DimensionFeuille(30, 120);
  EXPECT_EQ(Form().Height(), 10320.0f);  // 9000 - 8550 + 420 + 9420 + 30
  EXPECT_EQ(Zone().Top(), 435.0f);       // 420 + (9870 - 420 - 9420) / 2
}

TEST_F(WindowSizingTest, AMaximisedFormKeepsItsSizeAndTheSurfaceIsStillPlaced) {
  Form().SetWindowState(2);
  const Single width = Form().Width();
  const Single height = Form().Height();
  ky.DimensionFeuille(60, 300);
  EXPECT_EQ(TakeLog(), "Hauteur 18720 False\nLargeur 31920 False\n");
  EXPECT_EQ(Form().Width(), width);
  EXPECT_EQ(Form().Height(), height);
  // Larger than the room: negative places.
  EXPECT_EQ(Zone().Left(), (Form().ScaleWidth() - 31980) / 2);
  EXPECT_EQ(Zone().Top(), (Form().ScaleHeight() - 18780) / 2);
  EXPECT_LT(Zone().Left(), 0.0f);
}

TEST_F(WindowSizingTest, EspaceFeuilleWithRoomEnoughMovesNothing) {
  Zone().SetLeft(11);
  Zone().SetTop(13);
  ky.AffPos(5, 1);
  EXPECT_EQ(ky.EspaceFeuille(5000, 1000), 5);
  EXPECT_EQ(TakeLog(), "");
  // No Centrage either.
  EXPECT_EQ(Zone().Left(), 11.0f);
  EXPECT_EQ(Zone().Top(), 13.0f);
}

TEST_F(WindowSizingTest, EspaceFeuilleGrowsToExactlyWhatIsAsked) {
  ky.AffPos(5, 1);
  EXPECT_EQ(ky.EspaceFeuille(12000, 0), 5);
  EXPECT_EQ(TakeLog(), "Largeur 12000 False\nRecadre\n");
  EXPECT_EQ(Zone().ScaleWidth(), 12000.0f);

  // Height below the top of the current line: 6240 + 3000.
  ky.AffPos(20, 1);
  EXPECT_EQ(ky.EspaceFeuille(100, 3000), 20);
  EXPECT_EQ(TakeLog(), "Hauteur 9240 False\nRecadre\n");
  EXPECT_EQ(Zone().ScaleHeight(), 9240.0f);
  EXPECT_EQ(Form().Height(), 9765.0f);  // 9000 - 8550 + 9300 + 15
}

TEST_F(WindowSizingTest, AFormWithoutToolbarFailsEverySizing) {
  auto bare = std::make_shared<forms::Form>(1, 28800, 16200);
  bare->SetWidth(12000);
  bare->SetHeight(9000);
  Env().form = bare;
  ExpectPlatformError([&] { ky.DimensionFeuille(25); }, 438);
  // The surface was sized before the centring failed.
  EXPECT_EQ(TakeLog(), "Hauteur 7800 False\nLargeur 8820 False\n");
  EXPECT_EQ(Zone().ScaleWidth(), 8820.0f);
}

}  // namespace
}  // namespace ferlan::testing
