#include "headless/fixed_canvas.hpp"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "forms/bitmap.hpp"

namespace ferlan::headless {
namespace {

TEST(FixedCanvasTest, MeasuresWithFixedMetrics) {
  // 19.5 x S high and 10.5 x S a character wide, S being the size over 10.
  const std::tuple<forms::FontSpec, String, Single, Single> cases[] = {
      {{10, false}, u"", 0, 195},   {{10, false}, u"Total", 525, 195}, {{10, true}, u"ab", 210, 195},
      {{8, false}, u"é€", 168, 156}, {{9.75f, false}, u"ab", 204.75f, 190.125f}};
  FixedCanvas canvas;
  for (const auto& [font, text, width, height] : cases) {
    EXPECT_FLOAT_EQ(canvas.TextWidth(text, font), width) << "size " << font.size;
    EXPECT_FLOAT_EQ(canvas.TextHeight(text, font), height) << "size " << font.size;
  }
}

TEST(FixedCanvasTest, KeepsWhatWasDrawnSinceTheLastClearLessWhatAFillCovers) {
  FixedCanvas canvas;
  canvas.FillBox(0, 0, 105, 195, 255);
  canvas.Clear(0xFFFFFF);
  canvas.Box(10, 20, 30, 40, 0);
  canvas.Text(0, 19.5f, u"Été", forms::FontSpec{12, true}, 16711680);
  canvas.Text(105, 312, u"ab", forms::FontSpec{10, false}, 0);   // 105..315 x 312..507
  canvas.Line(0, 0, 2000, 0, 0);                                  // partly outside the fill
  canvas.FillBox(105, 312, 315, 507, 255);                       // the text's box, edges included
  canvas.Text(105, 312, u"abc", forms::FontSpec{10, false}, 0);  // wider: stays
  canvas.FillBox(315, 507, 105, 312, 0);                         // corners in any order
  EXPECT_EQ(canvas.DescribeOps(),
            "Box 10 20 30 40 0\nText 0 19.5 16711680 12b \"Été\"\nLine 0 0 2000 0 0\n"
            "Text 105 312 0 10 \"abc\"\nFillBox 315 507 105 312 0\n");
  // Transparent texts cover nothing: past the limit the oldest are counted.
  for (std::size_t i = 0; i < FixedCanvas::kOpsLimit * 2; ++i) {
    canvas.Text(0, 0, u"x", forms::FontSpec{10, false}, 0);
  }
  EXPECT_LE(canvas.Ops().size(), FixedCanvas::kOpsLimit + FixedCanvas::kOpsLimit / 4);
  EXPECT_EQ(canvas.Ops().size() + canvas.Dropped(), FixedCanvas::kOpsLimit * 2 + 5);
  // After the cut a fill still finds every item it covers.
  canvas.FillBox(0, 0, 105, 195, 1);
  EXPECT_EQ(canvas.DescribeOps(), "FillBox 0 0 105 195 1\n");
  canvas.Clear(0);
  EXPECT_EQ(canvas.Dropped(), 0u);
  // Long texts weigh by their length: the list keeps at most kTextLimit units.
  const String long_text(FixedCanvas::kTextLimit / 3, u'x');
  for (int i = 0; i < 10; ++i) canvas.Text(0, Single(i), long_text, forms::FontSpec{10, false}, 0);
  std::size_t units = 0;
  for (const DrawOp& op : canvas.Ops()) units += op.text.size();
  EXPECT_LE(units, FixedCanvas::kTextLimit);
  EXPECT_EQ(canvas.Ops().size() + canvas.Dropped(), 10u);
  // A cut while a covered item still waits to leave: the item that made the
  // cut is numbered before the list and its numbers are compacted together.
  canvas.Clear(0);
  canvas.Text(0, 0, u"covered", forms::FontSpec{10, false}, 0);
  canvas.FillBox(0, 0, 1000, 1000, 1);
  canvas.Text(0, 2000, String(FixedCanvas::kTextLimit + 1, u'x'), forms::FontSpec{10, false}, 0);
  ASSERT_EQ(canvas.Ops().size(), 1u);
  EXPECT_EQ(canvas.Ops()[0].text.size(), FixedCanvas::kTextLimit + 1);
}

TEST(FixedCanvasTest, AFillOnALongRowCoversOnlyWhatLiesInsideIt) {
  // Forty boxes along one lower edge, drawn out of order, and one that sticks
  // out on the left: a fill over boxes 10 to 19 takes those alone.
  FixedCanvas canvas;
  canvas.Clear(0);
  for (int i = 39; i >= 20; --i) canvas.Box(Single(i * 10), 0, Single(i * 10 + 10), 100, i);
  for (int i = 0; i < 20; ++i) canvas.Box(Single(i * 10), 0, Single(i * 10 + 10), 100, i);
  canvas.Box(95, 50, 150, 100, 99);
  canvas.FillBox(200, 0, 100, 100, 7);
  std::string kept;
  for (const DrawOp& op : canvas.Ops()) kept += std::to_string(op.colour) + " ";
  std::string expected;
  for (int i = 39; i >= 20; --i) expected += std::to_string(i) + " ";
  for (int i = 0; i < 10; ++i) expected += std::to_string(i) + " ";
  EXPECT_EQ(kept, expected + "99 7 ");
}

TEST(FixedCanvasTest, ManyFillsOverEachOtherLeaveOnlyTheLastBesideTheTexts) {
  // More covered items than the canvas holds back at once: the list, read
  // at any point, is what can still be seen, in the order drawn.
  FixedCanvas canvas;
  for (int i = 0; i < 1000; ++i) {
    canvas.FillBox(0, 0, 105, 195, i);
    canvas.Box(0, 0, 105, 100, i);
    canvas.Text(0, 0, u"ab", forms::FontSpec{10, false}, i);  // 0..210: never covered
    if (i == 500) {
      EXPECT_EQ(canvas.Ops().size(), 503u);
    }
  }
  canvas.FillBox(0, 0, 210, 195, 7);
  EXPECT_EQ(canvas.DescribeOps(), "FillBox 0 0 210 195 7\n");
}

TEST(FixedCanvasTest, SnapshotPaintsBackItsListOrElsewhereItsBox) {
  FixedCanvas canvas;
  canvas.Resize(300, 200);
  canvas.Clear(7);
  canvas.Line(0, 0, 10, 10, 1);
  PictureRef saved = canvas.Snapshot();
  canvas.Clear(0x00FF00);
  canvas.Box(1, 1, 2, 2, 0);
  canvas.Paint(*saved, 0, 0);
  EXPECT_EQ(canvas.DescribeOps(), "Line 0 0 10 10 1\n");
  EXPECT_EQ(canvas.Background(), 7);
  canvas.FillBox(10, 10, 0, 0, 3);  // the list painted back is covered as any other
  EXPECT_EQ(canvas.DescribeOps(), "FillBox 10 10 0 0 3\n");
  // Elsewhere it moves and covers its box; other pictures show place and size.
  canvas.Resize(1000, 1000);
  canvas.Clear(0);
  canvas.Text(0, 0, u"keep", forms::FontSpec{}, 0);
  canvas.Paint(*saved, 100, 50);
  canvas.Paint(forms::Bitmap(11, 5, std::vector<forms::Rgb>(55)), 30, 40);
  EXPECT_EQ(canvas.DescribeOps(),
            "Text 0 0 0 10 \"keep\"\n"
            "FillBox 100 50 400 250 7\n"
            "Line 100 50 110 60 1\n"
            "Picture 30 40 165 75\n");
}

}  // namespace
}  // namespace ferlan::headless
