#include "forms/picture_box.hpp"

#include <gtest/gtest.h>

#include "forms/bitmap.hpp"
#include "headless/fixed_canvas.hpp"
#include "support/session_test.hpp"

namespace ferlan::forms {
namespace {

using ferlan::testing::ExpectPlatformError;

class PictureBoxTest : public ::testing::Test {
 protected:
  headless::FixedCanvas& Canvas() { return dynamic_cast<headless::FixedCanvas&>(box.GetCanvas()); }

  PictureBox box{headless::FixedCanvasFactory()()};
};

TEST_F(PictureBoxTest, InnerSizeIsSizeLessBorder) {
  struct Case {
    Integer border_style;
    Single width;
    Single height;
    Single scale_width;
    Single scale_height;
  };
  const Case cases[] = {
      {0, 1000, 500, 1000, 500},
      {1, 1000, 500, 940, 440},
      {1, 40, 60, 0, 0},  // smaller than its border: no inner area
      {0, 0, 0, 0, 0},
  };
  for (const Case& c : cases) {
    box.SetBorderStyle(c.border_style);
    box.SetWidth(c.width);
    box.SetHeight(c.height);
    EXPECT_FLOAT_EQ(box.ScaleWidth(), c.scale_width) << c.border_style << " " << c.width;
    EXPECT_FLOAT_EQ(box.ScaleHeight(), c.scale_height) << c.border_style << " " << c.height;
    // The canvas follows the inner area.
    EXPECT_FLOAT_EQ(Canvas().Width(), c.scale_width);
    EXPECT_FLOAT_EQ(Canvas().Height(), c.scale_height);
  }
  EXPECT_FLOAT_EQ(box.ScaleTop(), 0);
  ExpectPlatformError([&] { box.SetWidth(-1); }, 5);
  ExpectPlatformError([&] { box.SetBorderStyle(2); }, 5);
}

TEST_F(PictureBoxTest, PrintDrawsAtTheDrawingPositionAndMovesRight) {
  box.SetWidth(5000);
  box.SetHeight(3000);
  box.SetCurrentX(105);
  box.SetCurrentY(312);
  box.Print(u"Nom", 0x00FF0000);
  EXPECT_FLOAT_EQ(box.CurrentX(), 105 + 315);
  EXPECT_FLOAT_EQ(box.CurrentY(), 312);
  box.Font().SetBold(true);
  box.Font().SetSize(12);
  box.Print(u":", 0);
  EXPECT_FLOAT_EQ(box.CurrentX(), 420 + 126);
  EXPECT_EQ(Canvas().DescribeOps(),
            "Text 105 312 16711680 10 \"Nom\"\n"
            "Text 420 312 0 12b \":\"\n");
}

TEST_F(PictureBoxTest, ClsClearsToBackColorAndHomesThePosition) {
  box.Print(u"x", 0);
  box.SetCurrentY(100);
  box.SetBackColor(0x00C0C0C0);
  box.Cls();
  EXPECT_EQ(Canvas().DescribeOps(), "");
  EXPECT_EQ(Canvas().Background(), 0x00C0C0C0);
  EXPECT_FLOAT_EQ(box.CurrentX(), 0);
  EXPECT_FLOAT_EQ(box.CurrentY(), 0);
}

TEST_F(PictureBoxTest, ImageAndPaintPictureGoThroughTheCanvas) {
  box.SetWidth(2000);
  box.SetHeight(1000);
  box.FillBox(0, 0, 100, 100, 5);
  PictureRef image = box.Image();
  EXPECT_FLOAT_EQ(image->Width(), 2000);
  box.Cls();
  box.PaintPicture(image, 0, 0);
  EXPECT_EQ(Canvas().DescribeOps(), "FillBox 0 0 100 100 5\n");
  ExpectPlatformError([&] { box.PaintPicture(nullptr, 0, 0); }, 91);
}

TEST_F(PictureBoxTest, PropertiesByName) {
  box.SetProperty("Width", Variant(Long{1500}));
  box.SetProperty("height", Variant(Double{700.5}));
  box.SetProperty("BorderStyle", Variant(Integer{1}));
  EXPECT_FLOAT_EQ(VariantToSingle(box.GetProperty("ScaleWidth")), 1440);
  EXPECT_FLOAT_EQ(VariantToSingle(box.GetProperty("ScaleHeight")), 640.5f);
  box.SetProperty("Left", Variant(Single{30}));
  box.SetProperty("Top", Variant(Single{40}));
  box.SetProperty("Visible", Variant(false));
  EXPECT_FLOAT_EQ(box.Left(), 30);
  EXPECT_FLOAT_EQ(box.Top(), 40);
  EXPECT_FALSE(box.Visible());
  box.SetProperty("CurrentX", Variant(Single{12}));
  EXPECT_FLOAT_EQ(VariantToSingle(box.GetProperty("CurrentX")), 12);
  box.SetProperty("BackColor", Variant(Long{255}));
  EXPECT_EQ(VariantToLong(box.GetProperty("BackColor")), 255);

  ObjectRef font = VariantToObject(box.GetProperty("Font"));
  font->SetProperty("Size", Variant(Single{12}));
  font->SetProperty("Bold", Variant(true));
  EXPECT_FLOAT_EQ(box.Font().Size(), 12);
  EXPECT_TRUE(box.Font().Bold());
  ExpectPlatformError([&] { font->SetProperty("Size", Variant(Single{0})); }, 5);

  auto picture = std::make_shared<Bitmap>(1, 1, std::vector<Rgb>(1));
  box.SetProperty("Picture", Variant(ObjectRef(picture)));
  EXPECT_EQ(box.Picture(), picture);
  EXPECT_EQ(VariantToObject(box.GetProperty("Picture")), picture);

  ExpectPlatformError([&] { box.SetProperty("ScaleWidth", Variant(Single{1})); }, 438,
                      "Object doesn't support this property or method: ScaleWidth");
  ExpectPlatformError([&] { box.GetProperty("Caption"); }, 438);
  ExpectPlatformError([&] { box.SetProperty("Picture", Variant(font)); }, 13);
  ExpectPlatformError([&] { box.SetProperty("Width", Variant(String(u"wide"))); }, 13);
}

}  // namespace
}  // namespace ferlan::forms
