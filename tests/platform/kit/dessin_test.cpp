// Dessin on a tiny surface of our own that writes down every drawing call.
#include "kit/dessin.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <utility>
#include <string>
#include <vector>

#include "kit/kit.hpp"

namespace ferlan::kit {
namespace {

class FakeFont : public ferlan::Font {
 public:
  Boolean Bold() const override { return bold_; }
  void SetBold(Boolean bold) override { bold_ = bold; }
  Single Size() const override { return size_; }
  void SetSize(Single size) override { size_ = size; }

 private:
  Boolean bold_ = false;
  Single size_ = 10;
};

// A picture that remembers what the surface showed when it was taken.
class FakePicture : public ferlan::Picture {
 public:
  explicit FakePicture(std::string shown) : content(std::move(shown)) {}
  Single Width() const override { return 0; }
  Single Height() const override { return 0; }
  std::string content;
};

// Fixed metrics (105 a character, 195 high) and a border of 60 around an
// inner size, so that outer and inner sizes differ. "Shows" is the text of
// the last drawing, which Image() captures.
class FakeSurface : public PictureBox {
 public:
  static constexpr Single kBorder = 60;

  Single Left() const override { return left_; }
  void SetLeft(Single v) override { left_ = v; }
  Single Top() const override { return top_; }
  void SetTop(Single v) override { top_ = v; }
  Single Width() const override { return width_; }
  void SetWidth(Single v) override {
    width_ = v;
    Log("Width " + Num(v));
  }
  Single Height() const override { return height_; }
  void SetHeight(Single v) override {
    height_ = v;
    Log("Height " + Num(v));
  }
  Boolean Visible() const override { return true; }
  void SetVisible(Boolean) override {}
  ferlan::Font& Font() override { return font_; }
  Single TextWidth(StringView text) override { return 105 * static_cast<Single>(text.size()); }
  Single TextHeight(StringView) override { return 195; }
  Single CurrentX() const override { return current_x_; }
  void SetCurrentX(Single v) override { current_x_ = v; }
  Single CurrentY() const override { return current_y_; }
  void SetCurrentY(Single v) override { current_y_ = v; }
  Single ScaleWidth() const override { return width_ - kBorder; }
  Single ScaleHeight() const override { return height_ - kBorder; }
  Single ScaleTop() const override { return 0; }
  Long BackColor() const override { return back_colour_; }
  void SetBackColor(Long colour) override { back_colour_ = colour; }
  PictureRef Picture() const override { return nullptr; }
  void SetPicture(PictureRef) override {}

  void Cls() override {
    Log("Cls");
    current_x_ = current_y_ = 0;
  }
  void FillBox(Single x1, Single y1, Single x2, Single y2, Long colour) override {
    Log("FillBox " + Num(x1) + " " + Num(y1) + " " + Num(x2) + " " + Num(y2) + " " + Num(colour));
  }
  void Box(Single x1, Single y1, Single x2, Single y2, Long colour) override {
    Log("Box " + Num(x1) + " " + Num(y1) + " " + Num(x2) + " " + Num(y2) + " " + Num(colour));
  }
  void Line(Single x1, Single y1, Single x2, Single y2, Long colour) override {
    Log("Line " + Num(x1) + " " + Num(y1) + " " + Num(x2) + " " + Num(y2) + " " + Num(colour));
  }
  void Print(StringView text, Long colour) override {
    Log("Print " + Num(current_x_) + " " + Num(current_y_) + " " + ToUtf8(text) + " " +
        Num(colour));
    current_x_ += TextWidth(text);
  }
  PictureRef Image() override { return std::make_shared<FakePicture>(shows_); }
  void PaintPicture(const PictureRef& picture, Single x, Single y) override {
    const auto* fake = dynamic_cast<const FakePicture*>(picture.get());
    Log("Paint " + (fake ? fake->content : std::string("?")) + " at " + Num(x) + " " + Num(y));
  }

  void SetOuterSize(Single width, Single height) {
    width_ = width;
    height_ = height;
  }
  std::vector<std::string> TakeLog() { return std::exchange(log_, {}); }

 private:
  static std::string Num(double v) {
    std::ostringstream out;
    out.precision(12);
    out << v;
    return out.str();
  }
  void Log(std::string entry) {
    shows_ = entry;
    log_.push_back(std::move(entry));
  }

  FakeFont font_;
  Single left_ = 0, top_ = 0, width_ = 1060, height_ = 860;
  Single current_x_ = 0, current_y_ = 0;
  Long back_colour_ = 0xFFFFFF;
  std::string shows_ = "nothing";
  std::vector<std::string> log_;
};

class FakeForm : public ferlan::Form {
 public:
  Single Left() const override { return left; }
  void SetLeft(Single v) override { left = v; }
  Single Top() const override { return top; }
  void SetTop(Single v) override { top = v; }
  Single Width() const override { return scale_width + 120; }
  void SetWidth(Single v) override { scale_width = v - 120; }
  Single Height() const override { return scale_height + 500; }
  void SetHeight(Single v) override { scale_height = v - 500; }
  Single ScaleWidth() const override { return scale_width; }
  Single ScaleHeight() const override { return scale_height; }
  Integer WindowState() const override { return 0; }
  void SetWindowState(Integer) override {}
  Long BorderStyle() const override { return 2; }
  void SetBorderStyle(Long) override {}
  Boolean KeyPreview() const override { return true; }
  void SetKeyPreview(Boolean) override {}
  String Caption() const override { return {}; }
  void SetCaption(const String&) override {}
  Long hWnd() const override { return 1; }
  ObjectRef Member(std::string_view name) override {
    throw PlatformError::MemberNotSupported(name);
  }

  Single left = 0, top = 0, scale_width = 12000, scale_height = 9000;
};

class DessinTest : public ::testing::Test {
 protected:
  std::shared_ptr<EnvState> env_ = std::make_shared<EnvState>();
  Dessin dessin_{env_};
  FakeSurface zone_;
};

using Log = std::vector<std::string>;

TEST_F(DessinTest, TexteDrawsAtThePlaceAndLeavesCourantXAtTheEnd) {
  env_->CourantY = 777;
  dessin_.Texte(zone_, 210, 312, u"Total", 255);
  EXPECT_EQ(zone_.TakeLog(), Log({"Print 210 312 Total 255"}));
  EXPECT_EQ(env_->CourantX, 210 + 5 * 105);
  EXPECT_EQ(env_->CourantY, 777);
  EXPECT_EQ(dessin_.TaillePolice(zone_), 10);
}

TEST_F(DessinTest, BoxesLinesAndClearing) {
  dessin_.LigneV(zone_, 100, 10, 400, 5);
  dessin_.Pave(zone_, 1, 2, 3, 4, 7);
  dessin_.Pave(zone_, 1, 2, 3, 4, -1);
  dessin_.EffaceRect(zone_, 105, 312, 1105, 506, 9);
  zone_.SetBackColor(0x00C0C0C0);
  dessin_.EffaceRect(zone_, 105, 312, 1105, 506, -1);
  dessin_.Rectangle(zone_, 3, 1868, 2895, 3210, 624);
  dessin_.Efface(zone_);
  EXPECT_EQ(zone_.TakeLog(), Log({"Line 100 10 100 400 5", "FillBox 1 2 3 4 7",
                                  "FillBox 105 312 1105 506 9",
                                  "FillBox 105 312 1105 506 12632256",
                                  "Box 2895 1868 6105 2492 3", "Cls"}));
}

TEST_F(DessinTest, Cadre3DFillsRaisesAndCentresItsTextVertically) {
  dessin_.Cadre3D(zone_, 100, 200, u"Nom", 1000, 500, 2000, 395, u"3D", 0, u"G");
  const Long light = env_->Blanc;
  const Long dark = env_->GrisFonce;
  const Log expected = {
      "FillBox 500 1000 2500 1395 100",
      "Line 500 1000 2500 1000 " + std::to_string(light),
      "Line 500 1000 500 1395 " + std::to_string(light),
      "Line 500 1395 2500 1395 " + std::to_string(dark),
      "Line 2500 1000 2500 1395 " + std::to_string(dark),
      "Print 530 1100 Nom 200",
  };
  EXPECT_EQ(zone_.TakeLog(), expected);
}

TEST_F(DessinTest, HauteurAndLargeurSetTheInnerSize) {
  // Inner 1000 x 800 inside a border of 60.
  dessin_.Hauteur(zone_, 1200, false);
  EXPECT_EQ(zone_.ScaleHeight(), 1200);
  dessin_.Hauteur(zone_, 500, false);
  EXPECT_EQ(zone_.ScaleHeight(), 500);
  dessin_.Hauteur(zone_, 400, true);
  EXPECT_EQ(zone_.ScaleHeight(), 500);
  dessin_.Hauteur(zone_, 500, true);
  EXPECT_EQ(zone_.ScaleHeight(), 500);
  dessin_.Hauteur(zone_, 501, true);
  EXPECT_EQ(zone_.ScaleHeight(), 501);

  dessin_.Largeur(zone_, 3000, false);
  EXPECT_EQ(zone_.ScaleWidth(), 3000);
  EXPECT_EQ(zone_.Width(), 3060);
  dessin_.Largeur(zone_, 2000, true);
  EXPECT_EQ(zone_.ScaleWidth(), 3000);
  dessin_.Largeur(zone_, 2000, false);
  EXPECT_EQ(zone_.ScaleWidth(), 2000);
  dessin_.Largeur(zone_, 2500, true);
  EXPECT_EQ(zone_.ScaleWidth(), 2500);
}

TEST_F(DessinTest, ResImageBringsBackTheLastSaveFirst) {
  dessin_.ResImage(zone_);  // nothing saved: nothing happens
  EXPECT_EQ(zone_.TakeLog(), Log{});
  dessin_.Pave(zone_, 0, 0, 1, 1, 1);
  dessin_.MemImage(zone_);
  dessin_.Pave(zone_, 0, 0, 2, 2, 2);
  dessin_.MemImage(zone_);
  FakeSurface other;
  other.SetBackColor(3);
  dessin_.Efface(other);
  dessin_.MemImage(other);
  zone_.TakeLog();
  dessin_.ResImage(zone_);
  dessin_.ResImage(zone_);
  dessin_.ResImage(zone_);
  EXPECT_EQ(zone_.TakeLog(),
            Log({"Paint FillBox 0 0 2 2 2 at 0 0", "Paint FillBox 0 0 1 1 1 at 0 0"}));
  other.TakeLog();
  dessin_.ResImage(other);
  EXPECT_EQ(other.TakeLog(), Log({"Paint Cls at 0 0"}));
}

TEST_F(DessinTest, ReduitShrinksTheSurfaceToTheFormAndNeverGrowsIt) {
  auto form = std::make_shared<FakeForm>();
  form->scale_width = 5000;
  form->scale_height = 4000;
  env_->form = form;
  zone_.SetTop(420);
  zone_.SetOuterSize(8000, 9000);
  dessin_.Reduit(zone_);
  EXPECT_EQ(zone_.Width(), 5000);
  EXPECT_EQ(zone_.Height(), 4000 - 420);
  zone_.SetOuterSize(1000, 1000);
  dessin_.Reduit(zone_);
  EXPECT_EQ(zone_.Width(), 1000);
  EXPECT_EQ(zone_.Height(), 1000);

  env_->form = nullptr;  // without a form there is nothing to fit
  zone_.SetOuterSize(8000, 9000);
  dessin_.Reduit(zone_);
  EXPECT_EQ(zone_.Width(), 8000);
}

TEST_F(DessinTest, RecadreKeepsTheFormOnTheScreen) {
  FakeForm form;
  form.left = -300;
  form.top = -20;
  dessin_.Recadre(form);
  EXPECT_EQ(form.left, 0);
  EXPECT_EQ(form.top, 0);
  form.left = 450;
  form.top = 90;
  dessin_.Recadre(form);
  EXPECT_EQ(form.left, 450);
  EXPECT_EQ(form.top, 90);
}

}  // namespace
}  // namespace ferlan::kit
