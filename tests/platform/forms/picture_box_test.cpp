// The picture control on the fixed-metric canvas: sizes with and without a
// border, text and clearing, and properties by name.
#include "forms/picture_box.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <utility>

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

TEST_F(PictureBoxTest, PrintMovesRightAndClsClearsToBackColorAndHomes) {
  box.SetCurrentX(105);
  box.SetCurrentY(312);
  box.Print(u"Nom", 0x00FF0000);
  box.Font().SetBold(true);
  box.Font().SetSize(12);
  box.Print(u":", 0);
  EXPECT_EQ(std::pair(box.CurrentX(), box.CurrentY()),
            std::pair(Single{105 + 315 + 126}, Single{312}));
  EXPECT_EQ(Canvas().DescribeOps(), "Text 105 312 16711680 10 \"Nom\"\nText 420 312 0 12b \":\"\n");
  box.SetBackColor(0x00C0C0C0);
  box.Cls();
  EXPECT_EQ(Canvas().DescribeOps(), "");
  EXPECT_EQ(Canvas().Background(), 0x00C0C0C0);
  EXPECT_EQ(std::pair(box.CurrentX(), box.CurrentY()), std::pair(Single{0}, Single{0}));
  ExpectPlatformError([&] { box.PaintPicture(nullptr, 0, 0); }, 91);
}

TEST_F(PictureBoxTest, PropertiesByName) {
  box.SetProperty("Width", Variant(Long{1500}));
  box.SetProperty("height", Variant(Double{700.5}));
  box.SetProperty("BorderStyle", Variant(Integer{1}));
  EXPECT_FLOAT_EQ(VariantToSingle(box.GetProperty("ScaleWidth")), 1440);
  EXPECT_FLOAT_EQ(VariantToSingle(box.GetProperty("ScaleHeight")), 640.5f);
  ObjectRef font = VariantToObject(box.GetProperty("Font"));
  font->SetProperty("Size", Variant(Single{12}));
  EXPECT_FLOAT_EQ(box.Font().Size(), 12);
  ExpectPlatformError([&] { font->SetProperty("Size", Variant(Single{0})); }, 5);
  ExpectPlatformError([&] { box.SetProperty("ScaleWidth", Variant(Single{1})); }, 438,
                      "Object doesn't support this property or method: ScaleWidth");
  ExpectPlatformError([&] { box.GetProperty("Caption"); }, 438);
  ExpectPlatformError([&] { box.SetProperty("Picture", Variant(font)); }, 13);  // no picture
  ExpectPlatformError([&] { box.SetProperty("Width", Variant(String(u"wide"))); }, 13);
  ExpectPlatformError([&] { box.SetWidth(-1); }, 5);
  ExpectPlatformError([&] { box.SetHeight(std::numeric_limits<Single>::quiet_NaN()); }, 5);
  ExpectPlatformError([&] { box.SetBorderStyle(2); }, 5);
  // A border wider than the box leaves nothing inside, and the canvas follows.
  box.SetWidth(40);
  EXPECT_EQ(std::pair(box.ScaleWidth(), Canvas().Width()), std::pair(Single{0}, Single{0}));
}

}  // namespace
}  // namespace ferlan::forms
