// Coloured messages and blocks as the raster surface paints them, read back
// by pixels: a "G" run stands twice as tall as a plain one, and a block's
// frame surrounds its lines.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>

#include "forms/bitmap.hpp"
#include "headless/session.hpp"
#include "raster/pixel_words.hpp"
#include "raster/raster_canvas.hpp"

namespace ferlan::raster {
namespace {

// The smallest box of pixels that pass `keep`, inside [x0, x1) x [y0, y1).
struct PixelBox {
  int left = 1 << 30, top = 1 << 30, right = -1, bottom = -1;
  bool Empty() const { return right < 0; }
  int Height() const { return bottom - top + 1; }
};

PixelBox BoxOf(const forms::Bitmap& picture, int x0, int x1, int y0, int y1,
               const std::function<bool(Long)>& keep) {
  PixelBox box;
  for (int y = std::max(0, y0); y < std::min(y1, picture.PixelHeight()); ++y) {
    for (int x = std::max(0, x0); x < std::min(x1, picture.PixelWidth()); ++x) {
      if (!keep(ColourOfRgb(picture.Pixel(x, y)))) continue;
      box.left = std::min(box.left, x);
      box.top = std::min(box.top, y);
      box.right = std::max(box.right, x);
      box.bottom = std::max(box.bottom, y);
    }
  }
  return box;
}

bool Dark(Long colour) {  // text in "N": black, and its anti-aliased edge
  return (colour & 0xFF) < 0x60 && ((colour >> 8) & 0xFF) < 0x60 && ((colour >> 16) & 0xFF) < 0x60;
}

class MessagesPictureTest : public ::testing::Test {
 protected:
  std::shared_ptr<forms::Bitmap> Shown() {
    return std::dynamic_pointer_cast<forms::Bitmap>(session.SurfaceRef()->Image());
  }
  headless::Session session{RasterCanvasFactory()};
  KySaisie ky;
};

TEST_F(MessagesPictureTest, AGRunIsTwiceAsTallAsAPlainOne) {
  ky.AffMesCoul(2, u"[[N,HHHH],[N,HHHH,G]]", true, 300);
  const Long plain_end = CLng(300 + ky.LargeurTexte(u"HHHH"));
  const int top = PixelOfTwips(ky.WinLigne(2));
  const int bottom = PixelOfTwips(ky.WinLigne(4));
  const auto picture = Shown();
  const PixelBox plain = BoxOf(*picture, PixelOfTwips(300), PixelOfTwips(plain_end), top, bottom, Dark);
  const PixelBox large = BoxOf(*picture, PixelOfTwips(plain_end) + 1, picture->PixelWidth(), top,
                               bottom, Dark);
  ASSERT_FALSE(plain.Empty());
  ASSERT_FALSE(large.Empty());
  // Capital letters: the height of the ink doubles with the size, within a
  // pixel of rounding at each edge.
  EXPECT_NEAR(large.Height(), 2 * plain.Height(), 2) << plain.Height() << " " << large.Height();
  EXPECT_GT(large.right - large.left, 1.8 * (plain.right - plain.left));
  // One top for all runs: the large letters hang lower, not higher.
  EXPECT_GE(large.top, plain.top - 1);
  EXPECT_EQ(session.Surface().Font().Size(), 10.0f);
}

TEST_F(MessagesPictureTest, ABlocksFrameSurroundsItsLines) {
  ky.AffPos(3, 1);
  String lines = u"[Premi\u00e8re ligne du bloc,Deux,Trois]";
  ky.AffBloc(u"N", lines, u"O", true);
  const auto picture = Shown();
  const Long frame_colour = session.Env().GrisTresClair;
  const PixelBox frame = BoxOf(*picture, 0, picture->PixelWidth(), 0, picture->PixelHeight(),
                               [&](Long c) { return c == frame_colour; });
  const PixelBox text = BoxOf(*picture, 0, picture->PixelWidth(), 0, picture->PixelHeight(), Dark);
  ASSERT_FALSE(frame.Empty());
  ASSERT_FALSE(text.Empty());
  EXPECT_LT(frame.left, text.left);
  EXPECT_GT(frame.right, text.right);
  EXPECT_LT(frame.top, text.top);
  EXPECT_GT(frame.bottom, text.bottom);
  // Centred as a whole: as much room left of the frame as right of it,
  // within a pixel.
  const int inner_width = PixelOfTwips(session.Surface().ScaleWidth());
  EXPECT_NEAR(frame.left, inner_width - 1 - frame.right, 2);
}

}  // namespace
}  // namespace ferlan::raster
