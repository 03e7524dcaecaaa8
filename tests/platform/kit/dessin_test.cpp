// Dessin on the fixed-metric surface, whose display list shows every drawing.
#include "kit/dessin.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <utility>

#include "forms/form.hpp"
#include "forms/picture_box.hpp"
#include "headless/fixed_canvas.hpp"

namespace ferlan::kit {
namespace {

// A border of 60 around an inner 1000 x 800, so that outer and inner sizes differ.
void Prepare(forms::PictureBox& box) {
  box.SetBorderStyle(1);
  box.SetWidth(1060);
  box.SetHeight(860);
}

std::string Ops(forms::PictureBox& box) {
  return dynamic_cast<headless::FixedCanvas&>(box.GetCanvas()).DescribeOps();
}

class DessinTest : public ::testing::Test {
 protected:
  DessinTest() { Prepare(zone_); }
  std::shared_ptr<EnvState> env_ = std::make_shared<EnvState>();
  Dessin dessin_{env_};
  forms::PictureBox zone_{headless::FixedCanvasFactory()()};
};

TEST_F(DessinTest, DrawsTextBoxesLinesAndRaisedFramesAndClearsToTheBackColour) {
  zone_.SetBackColor(0x00C0C0C0);
  dessin_.Pave(zone_, 0, 0, 9, 9, 9);
  dessin_.Efface(zone_);
  env_->CourantY = 777;
  dessin_.Texte(zone_, 210, 312, u"Total", 255);
  EXPECT_EQ(std::pair(env_->CourantX, env_->CourantY), std::pair(210.0F + 5 * 105, 777.0F));
  dessin_.LigneV(zone_, 100, 10, 400, 5);
  dessin_.Pave(zone_, 1, 2, 3, 4, 7);
  dessin_.Pave(zone_, 1, 2, 3, 4, -1);  // -1: nothing
  dessin_.EffaceRect(zone_, 105, 312, 1105, 506, 9);
  dessin_.EffaceRect(zone_, 105, 312, 1105, 506, -1);  // -1: the back colour
  dessin_.Rectangle(zone_, 3, 1868, 2895, 3210, 624);
  // Light from the top left (white), shade at the bottom right (dark grey),
  // the text 30 in and centred vertically.
  dessin_.Cadre3D(zone_, 100, 200, u"Nom", 1000, 500, 2000, 395, u"3D", 0, u"G");
  EXPECT_EQ(Ops(zone_),
            "Text 210 312 255 10 \"Total\"\nLine 100 10 100 400 5\nFillBox 1 2 3 4 7\n"
            "FillBox 105 312 1105 506 12632256\n"  // hides the earlier fill of 9
            "Box 2895 1868 6105 2492 3\nFillBox 500 1000 2500 1395 100\n"
            "Line 500 1000 2500 1000 16777215\nLine 500 1000 500 1395 16777215\n"
            "Line 500 1395 2500 1395 4210752\nLine 2500 1000 2500 1395 4210752\n"
            "Text 530 1100 200 10 \"Nom\"\n");
  EXPECT_EQ(dessin_.TaillePolice(zone_), 10);
}

TEST_F(DessinTest, HauteurAndLargeurSetTheInnerSizeQueSiInfOnlyToGrow) {
  // In order, from inner 1000 x 800 inside a border of 60: Hauteur?, size, QueSiInf, inner.
  const std::tuple<bool, Single, bool, Single> cases[] = {
      {true, 500, false, 500},   {true, 400, true, 500},     {true, 501, true, 501},
      {false, 3000, false, 3000}, {false, 2000, true, 3000}, {false, 2500, true, 3000}};
  for (const auto& [height, size, que_si_inf, inner] : cases) {
    (dessin_.*(height ? &Dessin::Hauteur : &Dessin::Largeur))(zone_, size, que_si_inf);
    EXPECT_EQ(height ? zone_.Height() : zone_.Width(), inner + 60) << size;
  }
}

// Saves nest in one stack, as the component's Pile does: the last picture
// saved comes back first, on the surface that asks for it.
TEST_F(DessinTest, ResImageBringsBackTheLastPictureSavedWhicheverTheSurface) {
  dessin_.Pave(zone_, 0, 0, 1, 1, 1);
  dessin_.MemImage(zone_);
  forms::PictureBox other{headless::FixedCanvasFactory()()};
  Prepare(other);
  dessin_.Pave(other, 0, 0, 3, 3, 3);
  dessin_.MemImage(other);
  dessin_.Efface(zone_);
  dessin_.ResImage(zone_);
  EXPECT_EQ(Ops(zone_), "FillBox 0 0 3 3 3\n");
  dessin_.Efface(zone_);
  dessin_.ResImage(zone_);
  EXPECT_EQ(Ops(zone_), "FillBox 0 0 1 1 1\n");
  dessin_.Pave(zone_, 5, 5, 9, 9, 4);
  dessin_.ResImage(zone_);  // all brought back: nothing happens
  EXPECT_EQ(Ops(zone_), "FillBox 0 0 1 1 1\nFillBox 5 5 9 9 4\n");
}

TEST_F(DessinTest, ReduitShrinksTheSurfaceToTheFormAndRecadreKeepsTheFormOnScreen) {
  zone_.SetTop(420);
  zone_.SetWidth(8000);
  dessin_.Reduit(zone_);  // without a form there is nothing to fit
  EXPECT_EQ(zone_.Width(), 8000);
  auto form = std::make_shared<forms::Form>(1, 28800, 16200);
  form->SetWidth(5000 + forms::Form::kBorderX);
  form->SetHeight(4000 + forms::Form::kBorderY);
  env_->form = form;
  dessin_.Reduit(zone_);  // too wide; high enough, and it never grows
  EXPECT_EQ(std::pair(zone_.Width(), zone_.Height()), std::pair(Single{5000}, Single{860}));
  zone_.SetHeight(9000);
  dessin_.Reduit(zone_);
  EXPECT_EQ(zone_.Height(), 4000 - 420);
  form->SetLeft(-300);
  form->SetTop(90);
  dessin_.Recadre(*form);
  EXPECT_EQ(std::pair(form->Left(), form->Top()), std::pair(Single{0}, Single{90}));
  form->SetLeft(450);
  form->SetTop(-20);
  dessin_.Recadre(*form);
  EXPECT_EQ(std::pair(form->Left(), form->Top()), std::pair(Single{450}, Single{0}));
}

}  // namespace
}  // namespace ferlan::kit
