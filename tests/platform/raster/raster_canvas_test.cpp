// The raster canvas: its font (DejaVu Sans from fontconfig, in the glyph
// cache), its measures at a size, and the pixels each drawing call sets.
#include "raster/raster_canvas.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <limits>
#include <tuple>
#include <utility>

#include "forms/picture_box.hpp"
#include "headless/fixed_canvas.hpp"
#include "raster/font_source.hpp"
#include "raster/glyph_cache.hpp"
#include "support/session_test.hpp"

namespace ferlan::raster {
namespace {

using ::testing::AllOf, ::testing::HasSubstr, ::testing::StartsWith, ::testing::ThrowsMessage;

constexpr Long kWhite = 0x00FFFFFF, kBlue = 0x00C00000, kYellow = 0x0000FFFF;
const forms::FontSpec kSize10{10, false};

int CountColour(const RasterCanvas& canvas, Long colour, int x0, int y0, int x1, int y1) {
  int count = 0;
  for (int y = y0; y <= y1; ++y) {
    for (int x = x0; x <= x1; ++x) count += canvas.ColourAt(x, y) == colour ? 1 : 0;
  }
  return count;
}

TEST(RasterCanvasTest, PictureBoxMeasuresDejaVuSansAndDoublesWithTheSize) {
  forms::PictureBox box(RasterCanvasFactory()());
  // DejaVu Sans has 2048 units to the em, and an em is 200 twips at 10 points
  // (the default): "T" advances 1251 units (1397 bold), a line is 2384.
  EXPECT_NEAR(box.TextWidth(u"T"), 1251.0 * 200 / 2048, 0.01);   // 122.17
  EXPECT_NEAR(box.TextHeight(u" "), 2384.0 * 200 / 2048, 0.01);  // 232.81
  EXPECT_EQ(box.TextHeight(u""), box.TextHeight(u"Wg"));         // one line, whatever it holds
  EXPECT_NEAR(box.TextHeight(u"a\r\nb"), 2 * box.TextHeight(u"a"), 0.01);
  box.Font().SetBold(true);
  EXPECT_NEAR(box.TextWidth(u"T"), 1397.0 * 200 / 2048, 0.01);  // 136.43
  // Twice the size, twice the measures, within a pixel.
  for (const StringView text : {u"T", u"Total 1 234,50 \u20ac"}) {
    box.Font().SetSize(8);
    const Single width = box.TextWidth(text), height = box.TextHeight(text);
    box.Font().SetSize(16);
    EXPECT_NEAR(box.TextWidth(text), 2 * width, kTwipsPerPixel);
    EXPECT_NEAR(box.TextHeight(text), 2 * height, kTwipsPerPixel);
  }
  // Many sizes: the glyph cache stays within its bound.
  GlyphCache& cache = GlyphCache::ForThisThread();
  const double t10 = cache.Instance(10, false).AdvanceTwips(U'T');
  for (int size = 6; size < 40; ++size) cache.Instance(Single(size), size % 2 == 0);
  EXPECT_LE(cache.InstanceCount(), 16u);
  // An instance that was let go is made again with the same measures.
  EXPECT_DOUBLE_EQ(cache.Instance(10, false).AdvanceTwips(U'T'), t10);
}

TEST(RasterCanvasTest, NoDejaVuSansIsAClearFontconfigError) {
  // A configuration that knows no font: no answer and a stand-in are both refused.
  const std::filesystem::path dir = ::testing::TempDir() + "fonts_" + std::to_string(::getpid());
  std::filesystem::create_directories(dir / "empty");
  std::ofstream(dir / "fonts.conf")
      << "<?xml version=\"1.0\"?>\n<fontconfig><dir>" << (dir / "empty").string()
      << "</dir><cachedir>" << (dir / "cache").string() << "</cachedir></fontconfig>\n";
  EXPECT_THAT(
      [&] { FindDejaVuSans((dir / "fonts.conf").string()); },
      ThrowsMessage<PlatformError>(AllOf(StartsWith("fontconfig: "), HasSubstr("DejaVu Sans"),
                                         HasSubstr("fonts-dejavu-core"))));
  std::filesystem::remove_all(dir);
}

TEST(RasterCanvasTest, ShapesTakeWholePixelsBothCornersIncluded) {
  RasterCanvas canvas(300, 300);  // 20 x 20 pixels of 15 twips
  // Pixels 2..5 across, 3..7 down; the corners come bottom right first.
  canvas.FillBox(5 * 15 + 14, 7 * 15, 2 * 15, 3 * 15 + 1, kBlue);
  EXPECT_EQ(CountColour(canvas, kBlue, 2, 3, 5, 7), 4 * 5);
  EXPECT_EQ(CountColour(canvas, kWhite, 0, 0, 19, 19), 400 - 4 * 5);
  // A box with no width or no height, as an empty text clears, fills nothing.
  canvas.FillBox(3 * 15, 3 * 15, 3 * 15, 6 * 15, kWhite);
  canvas.FillBox(2 * 15, 4 * 15, 5 * 15, 4 * 15, kWhite);
  EXPECT_EQ(CountColour(canvas, kBlue, 2, 3, 5, 7), 4 * 5);
  canvas.Clear(kWhite);
  canvas.Box(2 * 15, 2 * 15, 9 * 15, 6 * 15, kBlue);
  EXPECT_EQ(CountColour(canvas, kBlue, 0, 0, 19, 19), 2 * 8 + 2 * 3);  // the outline only
  canvas.Line(12 * 15, 1 * 15, 12 * 15, 18 * 15, kYellow);             // both ends drawn
  EXPECT_EQ(CountColour(canvas, kYellow, 11, 0, 13, 19), 18);
  EXPECT_EQ(CountColour(canvas, kYellow, 12, 1, 12, 18), 18);
}

TEST(RasterCanvasTest, ResizeKeepsTheTopLeftAndRefusesASizeBeyondCairo) {
  RasterCanvas canvas(150, 150);
  canvas.Clear(kYellow);
  canvas.FillBox(0, 0, 4 * 15, 4 * 15, kBlue);  // 5 x 5 pixels
  canvas.Resize(300, 225);
  ASSERT_EQ(std::pair(canvas.PixelWidth(), canvas.PixelHeight()), std::pair(20, 15));
  EXPECT_EQ(CountColour(canvas, kBlue, 0, 0, 19, 14), 25);
  EXPECT_EQ(canvas.ColourAt(19, 14), kYellow);  // new room in the cleared colour
  canvas.Resize(16, 1);                         // every pixel a size in twips reaches into
  EXPECT_EQ(std::pair(canvas.PixelWidth(), canvas.PixelHeight()), std::pair(2, 1));
  EXPECT_THAT([&] { canvas.Resize(1e7f, 150); },  // 666667 pixels: more than an image can hold
              ThrowsMessage<PlatformError>(StartsWith("cairo: ")));
  EXPECT_EQ(std::pair(canvas.PixelWidth(), canvas.ColourAt(0, 0)), std::pair(2, kBlue));  // kept
}

TEST(RasterCanvasTest, TextInPiecesLandsOnTheWholeTextsPixelsAndGrowsWithItsFont) {
  // What Aff does: draw, then go on from CurrentX = x + TextWidth.
  RasterCanvas whole(2000, 300), pieces(2000, 300);
  whole.Text(30, 30, u"Quantit\u00e9: 12", kSize10, 0);
  pieces.Text(30, 30, u"Quantit\u00e9", kSize10, 0);
  pieces.Text(30 + pieces.TextWidth(u"Quantit\u00e9", kSize10), 30, u": 12", kSize10, 0);
  EXPECT_EQ(dynamic_cast<const forms::Bitmap&>(*whole.Snapshot()).Pixels(),
            dynamic_cast<const forms::Bitmap&>(*pieces.Snapshot()).Pixels());

  RasterCanvas canvas(3000, 1500);
  canvas.Text(0, 0, u"HHHH", kSize10, 0);
  canvas.Text(0, 300, u"HHHH", {10, true}, 0);
  canvas.Text(0, 600, u"HHHH", {20, false}, 0);
  auto ink = [&](int y0, int y1) {
    return 200 * (y1 - y0 + 1) - CountColour(canvas, kWhite, 0, y0, 199, y1);
  };
  const int plain = ink(0, 19), bold = ink(20, 39), big = ink(40, 99);
  EXPECT_GT(plain, 0);
  EXPECT_GT(bold, plain);
  EXPECT_GT(big, 3 * plain);  // four times the area, give or take the edges
}

TEST(RasterCanvasTest, FarCoordinatesAreClippedToTheImage) {
  RasterCanvas canvas(3000, 3000);  // 200 x 200 pixels
  const auto painted = [&] { return 200 * 200 - CountColour(canvas, kWhite, 0, 0, 199, 199); };
  const float nan = std::numeric_limits<float>::quiet_NaN();
  for (const Single far : {1e30F, 3e38F, std::numeric_limits<Single>::max()}) {
    canvas.Clear(kWhite);
    for (const Single v : {far, -far}) {
      canvas.Text(v, 0, u"far", kSize10, kBlue);
      canvas.Text(0, v, u"far", kSize10, kBlue);
      canvas.Text(v, v, u"far", kSize10, kBlue);
      canvas.Box(v, v, 2 * v, 2 * v, kBlue);
      canvas.FillBox(v, 0, v, 3000, kBlue);
      canvas.Line(v, v, v, -v, kBlue);
      canvas.Line(v, 0, v, 100, kBlue);
      canvas.Line(nan, 0, v, 100, kBlue);
    }
    EXPECT_EQ(painted(), 0) << far;
    // Spanning the whole image from far away on both sides.
    canvas.Box(-far, -far, far, far, kBlue);
    EXPECT_EQ(painted(), 0) << far;
    canvas.FillBox(-far, -far, far, far, kYellow);
    EXPECT_EQ(CountColour(canvas, kYellow, 0, 0, 199, 199), 200 * 200) << far;
    // So far off, a Single (or a double) no longer places a slanted line to
    // the pixel; it must only stay inside the image.
    canvas.Line(-far, -far, far, far, kBlue);
  }
  // Far beyond the clamp of pixel positions yet precise: the diagonal keeps
  // its slope, every pixel of it and only those.
  for (const Single far : {1e8F, 1e9F}) {
    canvas.Clear(kWhite);
    canvas.Line(-far, -far, far, far, kBlue);
    EXPECT_EQ(CountColour(canvas, kBlue, 0, 0, 199, 199), 200) << far;
    EXPECT_EQ(canvas.ColourAt(77, 77), kBlue) << far;
  }
}

TEST(RasterCanvasTest, SnapshotPaintsWhereAskedCutAtTheEdge) {
  RasterCanvas canvas(900, 450);
  canvas.FillBox(30, 30, 600, 300, kBlue);
  const PictureRef saved = canvas.Snapshot();
  EXPECT_EQ(std::pair(saved->Width(), saved->Height()), std::pair(900.0f, 450.0f));
  canvas.Clear(kWhite);
  canvas.Paint(*saved, 450, 300);
  // The box's corners at (2, 2) and (29, 9) of the picture, and outside it.
  EXPECT_EQ(std::tuple(canvas.ColourAt(32, 22), canvas.ColourAt(59, 29), canvas.ColourAt(31, 21)),
            std::tuple(kBlue, kBlue, kWhite));
  // A picture without pixels cannot be painted.
  testing::ExpectPlatformError([&] { canvas.Paint(*headless::FixedCanvas().Snapshot(), 0, 0); }, 5);
}

}  // namespace
}  // namespace ferlan::raster
