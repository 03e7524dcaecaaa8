#include "headless/fixed_canvas.hpp"

#include <gtest/gtest.h>

#include "forms/bitmap.hpp"
#include "forms/picture_box.hpp"

namespace ferlan::headless {
namespace {

TEST(FixedCanvasTest, MeasuresWithFixedMetrics) {
  FixedCanvas canvas;
  struct Case {
    Single size;
    bool bold;
    String text;
    Single width;
    Single height;
  };
  const Case cases[] = {
      {10, false, u" ", 105, 195},    {10, false, u"T", 105, 195},
      {10, false, u"", 0, 195},       {10, false, u"Total", 525, 195},
      {10, true, u"ab", 210, 195},    {12, false, u"T", 126, 234},
      {8, false, u"é€", 168, 156},    {9.75f, false, u"ab", 204.75f, 190.125f},
  };
  for (const Case& c : cases) {
    const forms::FontSpec font{c.size, c.bold};
    EXPECT_FLOAT_EQ(canvas.TextWidth(c.text, font), c.width) << "size " << c.size;
    EXPECT_FLOAT_EQ(canvas.TextHeight(c.text, font), c.height) << "size " << c.size;
  }
}

TEST(FixedCanvasTest, KeepsWhatWasDrawnSinceTheLastClear) {
  FixedCanvas canvas;
  canvas.FillBox(0, 0, 105, 195, 255);
  canvas.Clear(0xFFFFFF);
  canvas.FillBox(0, 0, 105, 195, 255);
  canvas.Box(10, 20, 30, 40, 0);
  canvas.Line(5, 5, 5, 300, 128);
  canvas.Text(105, 312, u"Été", forms::FontSpec{10, true}, 0);
  canvas.Text(0, 19.5f, u"x", forms::FontSpec{12, false}, 16711680);
  EXPECT_EQ(canvas.Background(), 0xFFFFFF);
  EXPECT_EQ(canvas.DescribeOps(),
            "FillBox 0 0 105 195 255\n"
            "Box 10 20 30 40 0\n"
            "Line 5 5 5 300 128\n"
            "Text 105 312 0 10b \"Été\"\n"
            "Text 0 19.5 16711680 12 \"x\"\n");
}

TEST(FixedCanvasTest, SnapshotPaintedBackRestoresTheList) {
  FixedCanvas canvas;
  canvas.Resize(1000, 500);
  canvas.Clear(0xFFFFFF);
  canvas.Text(0, 0, u"ab", forms::FontSpec{}, 0);
  PictureRef saved = canvas.Snapshot();
  EXPECT_FLOAT_EQ(saved->Width(), 1000);
  EXPECT_FLOAT_EQ(saved->Height(), 500);
  const std::string before = canvas.DescribeOps();

  canvas.Clear(0x00FF00);
  canvas.Box(1, 1, 2, 2, 0);
  canvas.Paint(*saved, 0, 0);
  EXPECT_EQ(canvas.DescribeOps(), before);
  EXPECT_EQ(canvas.Background(), 0xFFFFFF);
}

TEST(FixedCanvasTest, SnapshotPaintedElsewhereCoversItsBoxAndMoves) {
  FixedCanvas small;
  small.Resize(300, 200);
  small.Clear(7);
  small.Line(0, 0, 10, 10, 1);
  PictureRef picture = small.Snapshot();

  FixedCanvas canvas;
  canvas.Resize(1000, 1000);
  canvas.Clear(0);
  canvas.Text(0, 0, u"keep", forms::FontSpec{}, 0);
  canvas.Paint(*picture, 100, 50);
  EXPECT_EQ(canvas.DescribeOps(),
            "Text 0 0 0 10 \"keep\"\n"
            "FillBox 100 50 400 250 7\n"
            "Line 100 50 110 60 1\n");
}

TEST(FixedCanvasTest, OtherPicturesAreRecordedByPlaceAndSize) {
  FixedCanvas canvas;
  canvas.Resize(1000, 1000);
  forms::Bitmap caret(11, 5, std::vector<forms::Rgb>(55));
  canvas.Paint(caret, 30, 40);
  EXPECT_EQ(canvas.DescribeOps(), "Picture 30 40 165 75\n");
}

TEST(FixedCanvasTest, DrivesAPictureBoxWithTheWorkedExampleFigures) {
  forms::PictureBox box(FixedCanvasFactory()());
  EXPECT_FLOAT_EQ(box.TextHeight(u" "), 195);
  EXPECT_FLOAT_EQ(box.TextWidth(u"T"), 105);
  box.Font().SetSize(12);
  EXPECT_FLOAT_EQ(box.TextHeight(u" "), 234);
}

}  // namespace
}  // namespace ferlan::headless
