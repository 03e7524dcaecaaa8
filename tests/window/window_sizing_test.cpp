// Sizing the surface in lines and columns, and centring it. The session's form is 12000 x 9000
// (11880 x 8550 inside) with a hidden toolbar 420 high; the surface fills it and has a border of
// 60, so it starts 11820 x 8490 inside. Growing the form runs its on_resize handler at once, as a
// host's resize event does, and that handler may call back into the component.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <utility>

#include "ferlan/kysaisie.hpp"
#include "forms/form.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {
namespace {

class WindowTest : public SessionTest {
 protected:
  void SetUp() override { Place(*other, 5, 6, 100, 100); }
  // The surface's inside, its place, and the form's size.
  std::string Layout() {
    std::ostringstream text;
    text << Zone().ScaleWidth() << "x" << Zone().ScaleHeight() << " at " << Zone().Left() << ","
         << Zone().Top() << " in " << Form().Width() << "x" << Form().Height();
    return text.str();
  }
  // Whether a Centrage of `other` runs, which it can only with the guard down.
  bool CentresAgain() {
    other->SetLeft(5);
    ky.Centrage(other);
    return other->Left() == (Form().ScaleWidth() - 100) / 2 &&
           other->Top() == (Form().ScaleHeight() - 100) / 2;
  }
  std::shared_ptr<forms::PictureBox> other = session.NewPictureBox();
  KySaisie ky;
};

TEST_F(WindowTest, InitKyFTakesTheFontSizeFromEnvOrElseFromDessin) {
  Form().SetBorderStyle(0);
  Zone().Font().SetSize(7);
  ky.InitKyF();
  EXPECT_TRUE(Form().KeyPreview());
  EXPECT_EQ(Form().BorderStyle(), 2);
  EXPECT_TRUE(Zone().Font().Bold());
  EXPECT_EQ(TakeLog(), "TaillePolice\n");
  EXPECT_EQ(Zone().Font().Size(), 10.0f);
  Env().TaillePolice = 12;
  ky.InitKyF();
  EXPECT_EQ(TakeLog(), "");
  EXPECT_EQ(Zone().Font().Size(), 12.0f);
}

TEST_F(WindowTest, DimensionFeuilleSizesInLinesAndColumnsAndCentres) {
  ky.DimensionFeuille(25);
  EXPECT_EQ(TakeLog(), "Hauteur 7800 False\nLargeur 8820 False\n");  // WinLigne(25), WinCol(84)
  // Centred in the form, which did not grow: (11880 - 8880) / 2, (8550 - 7860) / 2.
  EXPECT_EQ(Layout(), "8820x7800 at 1500,345 in 12000x9000");

  // -1 leaves the width, and QueSiInf a larger surface; both centre all the same.
  Zone().SetLeft(123);
  ky.DimensionFeuille(20, -1);
  EXPECT_EQ(TakeLog(), "Hauteur 6240 False\n");
  EXPECT_EQ(Layout(), "8820x6240 at 1500,1125 in 12000x9000");
  Zone().SetTop(456);
  ky.DimensionFeuilleLT(15, 5000, true);
  EXPECT_EQ(TakeLog(), "Hauteur 4680 True\nLargeur 5420 True\n");
  EXPECT_EQ(Layout(), "8820x6240 at 1500,1125 in 12000x9000");
}

TEST_F(WindowTest, ASurfaceLargerThanTheFormGrowsTheFormUnlessMaximised) {
  ky.DimensionFeuille(30, 120);
  EXPECT_EQ(TakeLog(), "Hauteur 9360 False\nLargeur 13020 False\nRecadre\n");
  // Height: 9000 - 8550 + 9420 (the surface with its border) + 15 x MargeY;
  // width: no margin. The top is (9435 - 9420) / 2, in floating point.
  EXPECT_EQ(Layout(), "13020x9360 at 0,7.5 in 13200x9885");

  // A visible toolbar takes its height from the form: 9000 - 8550 + 420 +
  // 9420 + 2 x 15, and the top is 420 + (9870 - 420 - 9420) / 2.
  std::dynamic_pointer_cast<ferlan::Control>(Form().Member("BarreOutils"))->SetVisible(true);
  Env().MargeY = 2;
  ky.DimensionFeuille(30, 120);
  EXPECT_EQ(TakeLog(), "Hauteur 9360 False\nLargeur 13020 False\nRecadre\n");
  EXPECT_EQ(Layout(), "13020x9360 at 0,435 in 13200x10320");

  // Grown past the screen's right and bottom edges, the form moves back to
  // end on them; larger than the screen, it keeps its top left corner on it.
  Form().SetLeft(20000);
  Form().SetTop(9000);
  ky.DimensionFeuille(32, 120);
  EXPECT_EQ(std::pair(Form().Left(), Form().Top()), std::pair(28800.0F - 13200, 16200.0F - 10944));
  ky.DimensionFeuille(60, 300);
  EXPECT_EQ(std::pair(Form().Left(), Form().Top()), std::pair(0.0F, 0.0F));
  TakeLog();

  // Maximised, the form keeps the screen's 28800 x 16200, and the surface, larger than the room,
  // goes to (28680 - 31980) / 2, 420 + (15750 - 420 - 18780) / 2.
  Form().SetWindowState(2);
  ky.DimensionFeuille(60, 300);
  EXPECT_EQ(TakeLog(), "Hauteur 18720 False\nLargeur 31920 False\n");
  EXPECT_EQ(Layout(), "31920x18720 at -1650,-1305 in 28800x16200");
}

TEST_F(WindowTest, EspaceFeuilleGrowsOnlyToWhatIsAsked) {
  // Room enough: nothing moves, no Centrage either.
  Zone().SetLeft(11);
  Zone().SetTop(13);
  ky.AffPos(5, 1);
  EXPECT_EQ(ky.EspaceFeuille(5000, 1000), 5);
  EXPECT_EQ(TakeLog(), "");
  EXPECT_EQ(Layout(), "11820x8490 at 11,13 in 12000x9000");

  EXPECT_EQ(ky.EspaceFeuille(12000, 0), 5);
  EXPECT_EQ(TakeLog(), "Largeur 12000 False\nRecadre\n");
  // Height below the top of the current line: 6240 + 3000; the form grows
  // to 9000 - 8550 + 9300 + 15 and centres it at (9315 - 9300) / 2.
  ky.AffPos(20, 1);
  EXPECT_EQ(ky.EspaceFeuille(100, 3000), 20);
  EXPECT_EQ(TakeLog(), "Hauteur 9240 False\nRecadre\n");
  EXPECT_EQ(Layout(), "12000x9240 at 0,7.5 in 12180x9765");
}

TEST_F(WindowTest, ACentrageFromInsideACentrageLeavesItsControlUntouched) {
  int resizes = 0;
  Form().on_resize = [&] {
    ++resizes;
    KySaisie{}.Centrage(other);
  };
  ky.DimensionFeuille(30, 120);  // grows the form's height and width
  EXPECT_EQ(resizes, 2);
  EXPECT_EQ(std::pair(other->Left(), other->Top()), std::pair(5.0F, 6.0F));
  // The outer call completed, and once it has ended a Centrage runs again.
  EXPECT_EQ(Layout(), "13020x9360 at 0,7.5 in 13200x9885");
  Form().on_resize = nullptr;
  EXPECT_TRUE(CentresAgain());
}

TEST_F(WindowTest, ErrorsInsideCentrageLeaveTheGuardDown) {
  Form().on_resize = [] { throw PlatformError::InvalidCall("resize refused"); };
  ExpectPlatformError([&] { ky.DimensionFeuille(30, 120); }, 5);
  // The height had been set when the handler failed; the width had not.
  EXPECT_EQ(std::pair(Form().Height(), Form().Width()), std::pair(9885.0F, 12000.0F));
  Form().on_resize = nullptr;
  EXPECT_TRUE(CentresAgain());

  // Nothing to centre is an object error; a form without toolbar fails
  // every sizing, after the surface was sized.
  ExpectPlatformError([&] { ky.Centrage(nullptr); }, 91);
  auto form = Env().form;
  Env().form = std::make_shared<forms::Form>(1, 28800, 16200);
  TakeLog();
  ExpectPlatformError([&] { ky.DimensionFeuille(25); }, 438);
  EXPECT_EQ(TakeLog(), "Hauteur 7800 False\nLargeur 8820 False\n");
  ExpectPlatformError([&] { ky.Centrage(other); }, 438);
  Env().form = form;
  EXPECT_TRUE(CentresAgain());
}

TEST_F(WindowTest, CentrageTakesAnyObjectWithTheMembersItsStepsRead) {
  // The toolbar has no ScaleHeight: only fitting a normal form reads it.
  auto toolbar = std::dynamic_pointer_cast<Control>(Form().Member("BarreOutils"));
  Place(*toolbar, 5, 6, 1000, 420);
  ExpectPlatformError([&] { ky.Centrage(toolbar); }, 438);
  EXPECT_EQ(std::pair(toolbar->Left(), toolbar->Top()), std::pair(5.0F, 6.0F));
  // Maximised, the form is 28680 x 15750 inside.
  Form().SetWindowState(2);
  toolbar->SetWidth(1000);
  ky.Centrage(toolbar);
  EXPECT_EQ(std::pair(toolbar->Left(), toolbar->Top()), std::pair(13840.0F, 7665.0F));
}

}  // namespace
}  // namespace ferlan::testing
