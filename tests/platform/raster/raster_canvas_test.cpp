// The raster canvas: DejaVu Sans metrics at a size, and what the pixels show
// after each drawing call.
#include "raster/raster_canvas.hpp"

#include <gtest/gtest.h>

#include <memory>

#include "forms/bitmap.hpp"
#include "raster/pixel_words.hpp"

namespace ferlan::raster {
namespace {

constexpr Long kWhite = 0x00FFFFFF;
constexpr Long kBlue = 0x00C00000;
constexpr Long kYellow = 0x0000FFFF;
constexpr Long kRed = 0x000000C0;
constexpr Single kPixel = 15;

const forms::FontSpec kSize10{10, false};

int CountColour(const RasterCanvas& canvas, Long colour, int x0, int y0, int x1, int y1) {
  int count = 0;
  for (int y = y0; y <= y1; ++y) {
    for (int x = x0; x <= x1; ++x) count += canvas.ColourAt(x, y) == colour ? 1 : 0;
  }
  return count;
}

TEST(RasterCanvasTest, MetricsAtDefaultSizeComeFromDejaVuSans) {
  RasterCanvas canvas;
  // DejaVu Sans: "T" advances 1251 of 2048 units to the em, and a line is
  // 2384 units (ascent 1901 + descent 483); at 10 points an em is 200 twips.
  EXPECT_NEAR(canvas.TextWidth(u"T", kSize10), 1251.0 * 200 / 2048, 0.01);   // 122.17
  EXPECT_NEAR(canvas.TextHeight(u" ", kSize10), 2384.0 * 200 / 2048, 0.01);  // 232.81
  // Every text of one line has the line's height, an empty one too.
  EXPECT_EQ(canvas.TextHeight(u"", kSize10), canvas.TextHeight(u"Wg", kSize10));
  EXPECT_EQ(canvas.TextWidth(u"", kSize10), 0);
  // Two lines are twice as high.
  EXPECT_NEAR(canvas.TextHeight(u"a\r\nb", kSize10), 2 * canvas.TextHeight(u"a", kSize10), 0.01);
}

TEST(RasterCanvasTest, DoublingTheSizeDoublesMeasuresWithinAPixel) {
  RasterCanvas canvas;
  const forms::FontSpec sizes[] = {{8, false}, {10, false}, {12, true}, {10, true}};
  for (const auto& font : sizes) {
    const forms::FontSpec doubled{font.size * 2, font.bold};
    for (StringView text : {StringView(u"T"), StringView(u" "), StringView(u"Montant HT: 1 234,50 \u20ac")}) {
      SCOPED_TRACE(testing::Message() << "size " << font.size << " bold " << font.bold);
      EXPECT_NEAR(canvas.TextWidth(text, doubled), 2 * canvas.TextWidth(text, font), kPixel);
      EXPECT_NEAR(canvas.TextHeight(text, doubled), 2 * canvas.TextHeight(text, font), kPixel);
    }
  }
}

TEST(RasterCanvasTest, WidthsAddUpAndBoldIsWider) {
  RasterCanvas canvas;
  const Single whole = canvas.TextWidth(u"Ferlan 2024", kSize10);
  EXPECT_NEAR(whole, canvas.TextWidth(u"Ferlan ", kSize10) + canvas.TextWidth(u"2024", kSize10),
              0.01);
  EXPECT_LT(canvas.TextWidth(u"i", kSize10), canvas.TextWidth(u"W", kSize10));
  EXPECT_GT(canvas.TextWidth(u"Ferlan", {10, true}), canvas.TextWidth(u"Ferlan", kSize10));
  // Characters beyond Latin-1 are measured too: the euro sign and a bullet.
  EXPECT_GT(canvas.TextWidth(u"\u20ac\u2022", kSize10), 0);
}

TEST(RasterCanvasTest, FillBoxCoversBothCornersInAnyOrder) {
  RasterCanvas canvas(300, 300);  // 20 x 20 pixels
  ASSERT_EQ(canvas.PixelWidth(), 20);
  ASSERT_EQ(canvas.PixelHeight(), 20);
  // Pixels 2..5 across, 3..7 down; the corners come bottom right first.
  canvas.FillBox(5 * kPixel + 14, 7 * kPixel, 2 * kPixel, 3 * kPixel + 1, kBlue);
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 20; ++x) {
      const bool inside = x >= 2 && x <= 5 && y >= 3 && y <= 7;
      ASSERT_EQ(canvas.ColourAt(x, y), inside ? kBlue : kWhite) << "pixel " << x << "," << y;
    }
  }
}

TEST(RasterCanvasTest, BoxLineAndClearDrawWholePixels) {
  RasterCanvas canvas(300, 300);
  canvas.Box(2 * kPixel, 2 * kPixel, 9 * kPixel, 6 * kPixel, kRed);
  EXPECT_EQ(CountColour(canvas, kRed, 0, 0, 19, 19), 2 * 8 + 2 * 3);  // outline only
  EXPECT_EQ(canvas.ColourAt(2, 2), kRed);
  EXPECT_EQ(canvas.ColourAt(9, 6), kRed);
  EXPECT_EQ(canvas.ColourAt(5, 4), kWhite);

  canvas.Line(12 * kPixel, 1 * kPixel, 12 * kPixel, 18 * kPixel, kBlue);  // a column rule
  EXPECT_EQ(CountColour(canvas, kBlue, 12, 0, 12, 19), 18);
  EXPECT_EQ(CountColour(canvas, kBlue, 11, 0, 11, 19) + CountColour(canvas, kBlue, 13, 0, 13, 19), 0);

  canvas.Line(0, 0, 19 * kPixel, 19 * kPixel, kBlue);  // a diagonal has both ends
  EXPECT_EQ(canvas.ColourAt(0, 0), kBlue);
  EXPECT_EQ(canvas.ColourAt(19, 19), kBlue);

  canvas.Clear(kYellow);
  EXPECT_EQ(CountColour(canvas, kYellow, 0, 0, 19, 19), 400);
}

TEST(RasterCanvasTest, ResizeKeepsTheTopLeftAndGrowsInTheClearedColour) {
  RasterCanvas canvas(150, 150);
  canvas.Clear(kYellow);
  canvas.FillBox(0, 0, 4 * kPixel, 4 * kPixel, kBlue);
  canvas.Resize(300, 225);
  ASSERT_EQ(canvas.PixelWidth(), 20);
  ASSERT_EQ(canvas.PixelHeight(), 15);
  EXPECT_EQ(CountColour(canvas, kBlue, 0, 0, 19, 14), 25);
  EXPECT_EQ(canvas.ColourAt(9, 9), kYellow);    // kept
  EXPECT_EQ(canvas.ColourAt(19, 14), kYellow);  // new room
  canvas.Resize(45, 45);
  EXPECT_EQ(CountColour(canvas, kBlue, 0, 0, 2, 2), 9);
  // A size in twips takes every pixel it reaches into.
  canvas.Resize(16, 1);
  EXPECT_EQ(canvas.PixelWidth(), 2);
  EXPECT_EQ(canvas.PixelHeight(), 1);
}

TEST(RasterCanvasTest, ASizeBeyondCairoIsAHostErrorAndTheCanvasStays) {
  RasterCanvas canvas(150, 150);
  canvas.Clear(kBlue);
  try {
    canvas.Resize(1e7f, 150);  // 666667 pixels: more than an image can hold
    FAIL() << "no error";
  } catch (const PlatformError& error) {
    EXPECT_EQ(error.Description().rfind("cairo: ", 0), 0u) << error.Description();
  }
  EXPECT_EQ(canvas.PixelWidth(), 10);
  EXPECT_EQ(canvas.ColourAt(9, 9), kBlue);
}

TEST(RasterCanvasTest, TextLiesInsideItsMeasuredBoxInItsColour) {
  RasterCanvas canvas(3000, 600);
  canvas.Clear(kBlue);
  const String text = u"Facture N\u00b0 1234 \u00e9t\u00e9";
  const Single x = 105, y = 195;
  canvas.Text(x, y, text, kSize10, kYellow);
  const int x0 = PixelOfTwips(x), y0 = PixelOfTwips(y);
  const int x1 = PixelOfTwips(x + canvas.TextWidth(text, kSize10));
  const int y1 = PixelOfTwips(y + canvas.TextHeight(text, kSize10));
  int yellow = 0;
  for (int py = 0; py < canvas.PixelHeight(); ++py) {
    for (int px = 0; px < canvas.PixelWidth(); ++px) {
      const Long c = canvas.ColourAt(px, py);
      if (c == kBlue) continue;
      // Outside the measured box nothing is touched.
      ASSERT_TRUE(px >= x0 && px <= x1 && py >= y0 && py <= y1) << "pixel " << px << "," << py;
      // Inside, an edge pixel is a blend of yellow over blue: red and green
      // rise together, blue falls.
      const int r = c & 0xFF, g = (c >> 8) & 0xFF, b = (c >> 16) & 0xFF;
      EXPECT_EQ(r, g);
      EXPECT_LE(b, 0xC0);
      yellow += c == kYellow ? 1 : 0;
    }
  }
  EXPECT_GT(yellow, 20);  // fully covered pixels show the colour itself
}

TEST(RasterCanvasTest, TextDrawnInPiecesMatchesTextDrawnWhole) {
  // What Aff does: draw, then go on from CurrentX = x + TextWidth.
  RasterCanvas whole(2000, 300), pieces(2000, 300);
  whole.Text(30, 30, u"Quantit\u00e9: 12", kSize10, 0);
  const Single first = pieces.TextWidth(u"Quantit\u00e9", kSize10);
  pieces.Text(30, 30, u"Quantit\u00e9", kSize10, 0);
  pieces.Text(30 + first, 30, u": 12", kSize10, 0);
  auto a = std::dynamic_pointer_cast<forms::Bitmap>(whole.Snapshot());
  auto b = std::dynamic_pointer_cast<forms::Bitmap>(pieces.Snapshot());
  ASSERT_TRUE(a && b);
  EXPECT_EQ(a->Pixels(), b->Pixels());
}

TEST(RasterCanvasTest, BoldAndLargerTextCoverMorePixels) {
  RasterCanvas canvas(3000, 1500);
  canvas.Text(0, 0, u"HHHH", kSize10, 0);
  canvas.Text(0, 300, u"HHHH", {10, true}, 0);
  canvas.Text(0, 600, u"HHHH", {20, false}, 0);
  const int w = canvas.PixelWidth() - 1;
  auto ink = [&](int y0, int y1) {
    return (w + 1) * (y1 - y0 + 1) - CountColour(canvas, kWhite, 0, y0, w, y1);
  };
  const int plain = ink(0, 19), bold = ink(20, 39), big = ink(40, 99);
  EXPECT_GT(plain, 0);
  EXPECT_GT(bold, plain);
  EXPECT_GT(big, 3 * plain);  // four times the area, give or take the edges
}

TEST(RasterCanvasTest, SnapshotPaintsBackPixelForPixel) {
  RasterCanvas canvas(900, 450);
  canvas.Clear(kWhite);
  canvas.FillBox(30, 30, 600, 300, kBlue);
  canvas.Text(45, 45, u"Sauvegarde", kSize10, kYellow);
  const PictureRef saved = canvas.Snapshot();
  EXPECT_EQ(saved->Width(), 900);
  EXPECT_EQ(saved->Height(), 450);
  const auto before = std::dynamic_pointer_cast<forms::Bitmap>(saved);
  ASSERT_TRUE(before);

  canvas.Clear(kRed);
  canvas.Text(0, 0, u"autre chose", kSize10, 0);
  canvas.Paint(*saved, 0, 0);
  const auto after = std::dynamic_pointer_cast<forms::Bitmap>(canvas.Snapshot());
  EXPECT_EQ(after->Pixels(), before->Pixels());

  // Painted elsewhere, it lands at that pixel and is cut at the edge.
  canvas.Clear(kWhite);
  canvas.Paint(*saved, 450, 300);
  EXPECT_EQ(canvas.ColourAt(29, 19), kWhite);
  EXPECT_EQ(canvas.ColourAt(32, 22), kBlue);  // the box's corner at (2, 2) of the picture
}

TEST(RasterCanvasTest, PaintRefusesAPictureWithoutPixels) {
  class Blank final : public Picture {
   public:
    Single Width() const override { return 15; }
    Single Height() const override { return 15; }
  };
  RasterCanvas canvas(150, 150);
  try {
    canvas.Paint(Blank{}, 0, 0);
    FAIL() << "no error";
  } catch (const PlatformError& error) {
    EXPECT_EQ(error.Number(), 5);
  }
}

TEST(RasterCanvasTest, FactoryMakesRasterCanvases) {
  std::unique_ptr<forms::Canvas> canvas = RasterCanvasFactory()();
  ASSERT_NE(dynamic_cast<RasterCanvas*>(canvas.get()), nullptr);
  EXPECT_NEAR(canvas->TextWidth(u"T", kSize10), 122.17, 0.01);
}

}  // namespace
}  // namespace ferlan::raster
