// The form as a person sees it: what Aff, the kit's Dessin and the caret put
// on the screen, read back from the composed picture and from its PNG file.
#include "raster/form_picture.hpp"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "editor/caret_bitmaps.hpp"
#include "platform/raster/raster_form_fixture.hpp"
#include "raster/picture_files.hpp"
#include "raster/pixel_words.hpp"

namespace ferlan::raster {
namespace {

constexpr Long kWhite = 0x00FFFFFF;

Long At(const forms::Bitmap& picture, int x, int y) {
  return ColourOfRgb(picture.Pixel(x, y));
}

// A box of pixels, both ends included.
struct PixelBox {
  int x0, y0, x1, y1;
  bool Holds(int x, int y) const { return x >= x0 && x <= x1 && y >= y0 && y <= y1; }
};

// Yellow over blue: a blend of the two has red = green and blue at most 0xC0.
bool YellowOnBlue(Long c) {
  const int r = c & 0xFF, g = (c >> 8) & 0xFF, b = (c >> 16) & 0xFF;
  return r == g && b <= 0xC0 && !(r == 0 && b == 0);
}

TEST(FormPictureTest, AffInCodeIShowsYellowTextOnABlueBoxExactlyWhereAffPutIt) {
  RasterForm f;
  KySaisie ky;
  const String text = u"FACTURE N\u00b0 1024";
  const Long y = 390;
  const Single x = 210;
  ky.AfficheT(y, x, u"I", text);

  // The box of Aff: from (X, Y) to (X + W, Y + HauteurTexte - 2 x MargeY),
  // W being the measured width rounded.
  const double right = x + static_cast<double>(CLng(ky.LargeurTexte(text)));
  const double bottom = y + static_cast<double>(ky.HauteurTexte()) - 2 * f.env->MargeY;
  const auto picture = ComposeForm(*f.form, f.surface.get());
  ASSERT_EQ(picture->PixelWidth(), (12000 - 120) / 15);
  ASSERT_EQ(picture->PixelHeight(), (9000 - 450) / 15);

  // The surface's inner area starts after its 2-pixel border.
  const int ox = 300 / 15 + 2, oy = 600 / 15 + 2;
  const PixelBox inner{ox, oy, ox + 599, oy + 399};
  const PixelBox box{ox + PixelOfTwips(x), oy + PixelOfTwips(y), ox + PixelOfTwips(right),
                     oy + PixelOfTwips(bottom)};
  int yellow = 0;
  for (int py = inner.y0; py <= inner.y1; ++py) {
    for (int px = inner.x0; px <= inner.x1; ++px) {
      const Long c = At(*picture, px, py);
      if (box.Holds(px, py)) {
        ASSERT_TRUE(YellowOnBlue(c)) << "pixel " << px << "," << py << " is " << std::hex << c;
        yellow += c == f.env->Jaune ? 1 : 0;
      } else {
        ASSERT_EQ(c, kWhite) << "pixel " << px << "," << py;
      }
    }
  }
  EXPECT_GT(yellow, 30);
  // The box's four corners are plain blue: the text lies inside it.
  for (auto [px, py] : {std::pair{box.x0, box.y0}, {box.x1, box.y0}, {box.x0, box.y1},
                        {box.x1, box.y1}}) {
    EXPECT_EQ(At(*picture, px, py), f.env->Bleu) << "corner " << px << "," << py;
  }
  // Around the surface: its border, then the form's back colour.
  EXPECT_NE(At(*picture, ox - 1, oy + 10), kWhite);
  EXPECT_EQ(At(*picture, 5, 5), 0x00F0F0F0);
}

TEST(FormPictureTest, ToolbarShowsOnlyWhenVisible) {
  RasterForm f;
  const int toolbar_rows = 420 / 15;
  EXPECT_EQ(At(*ComposeForm(*f.form, f.surface.get()), 100, 5), 0x00F0F0F0);
  f.toolbar->SetVisible(true);
  const auto picture = ComposeForm(*f.form, f.surface.get());
  const Long strip = At(*picture, 100, 5);
  EXPECT_NE(strip, 0x00F0F0F0);
  // The strip spans the form's width and its own height, then the form shows.
  EXPECT_EQ(At(*picture, picture->PixelWidth() - 1, 5), strip);
  EXPECT_NE(At(*picture, 100, toolbar_rows - 1), 0x00F0F0F0);
  EXPECT_EQ(At(*picture, 100, toolbar_rows), 0x00F0F0F0);
}

TEST(FormPictureTest, CaretShowsItsPictureStretchedWhereAndWhenVisible) {
  RasterForm f;
  f.caret->SetPicture(DecodePicture(CaretSurchargeImage()));  // all black
  f.caret->SetLeft(1500);
  f.caret->SetTop(600);
  f.caret->SetWidth(165);
  f.caret->SetHeight(75);
  const int ox = 300 / 15 + 2, oy = 600 / 15 + 2;
  auto count_black = [](const forms::Bitmap& p) {
    int n = 0;
    for (const auto& rgb : p.Pixels()) n += rgb == forms::Rgb{0, 0, 0} ? 1 : 0;
    return n;
  };
  EXPECT_EQ(count_black(*ComposeForm(*f.form, f.surface.get())), 0);

  f.caret->SetVisible(true);
  auto picture = ComposeForm(*f.form, f.surface.get());
  EXPECT_EQ(count_black(*picture), 11 * 5);
  EXPECT_EQ(At(*picture, ox + 100, oy + 40), 0);
  EXPECT_EQ(At(*picture, ox + 110, oy + 44), 0);
  EXPECT_EQ(At(*picture, ox + 99, oy + 40), kWhite);

  // As wide as a letter: the picture follows the control's width.
  f.caret->SetWidth(135);
  picture = ComposeForm(*f.form, f.surface.get());
  EXPECT_EQ(count_black(*picture), 9 * 5);

  // The insert picture keeps its drawing: its tip in the middle of the top row.
  f.caret->SetPicture(DecodePicture(CaretInsertionImage()));
  f.caret->SetWidth(165);
  picture = ComposeForm(*f.form, f.surface.get());
  EXPECT_EQ(At(*picture, ox + 105, oy + 40), 0);
  EXPECT_EQ(At(*picture, ox + 105, oy + 41), f.env->Jaune);
  EXPECT_EQ(At(*picture, ox + 100, oy + 40), kWhite);
}

TEST(FormPictureTest, MessageZoneShowsItsPictureUnderTheSurface) {
  RasterForm f;
  auto message = std::make_shared<forms::Bitmap>(
      4, 2, std::vector<forms::Rgb>(8, forms::Rgb{192, 0, 0}));
  // Placed as AfficheZoneMessage places it: touching the surface's lower edge.
  f.zone->SetPicture(message);
  f.zone->SetWidth(60);
  f.zone->SetHeight(30);
  f.zone->SetTop(f.surface->Top() + f.surface->Height());
  f.zone->SetLeft(f.surface->Left() + (f.surface->Width() - f.zone->Width()) / 2);
  f.zone->SetVisible(true);
  const auto picture = ComposeForm(*f.form, f.surface.get());
  const int x = PixelOfTwips(f.zone->Left()), y = PixelOfTwips(f.zone->Top());
  EXPECT_EQ(At(*picture, x, y), 0x000000C0);
  EXPECT_EQ(At(*picture, x + 3, y + 1), 0x000000C0);
  EXPECT_EQ(At(*picture, x + 4, y), 0x00F0F0F0);

  f.zone->SetVisible(false);
  EXPECT_EQ(At(*ComposeForm(*f.form, f.surface.get()), x, y), 0x00F0F0F0);
}

TEST(FormPictureTest, PngFileShowsWhatTheComposedPictureShows) {
  RasterForm f;
  KySaisie ky;
  f.toolbar->SetVisible(true);
  ky.AfficheT(195, 105, u"S", u"Total 1 234,50");
  ky.AfficheT(585, 105, u"Rouge", u"Erreur de saisie");
  const std::string path = (std::filesystem::temp_directory_path() /
                            ("ferlan_form_" + std::to_string(::getpid()) + ".png"))
                               .string();
  // Without a surface given, the form's own "ZoneAff" is the surface.
  WriteFormPng(*f.form, path);
  const auto written = LoadPictureFile(path);
  const auto composed = ComposeForm(*f.form, f.surface.get());
  EXPECT_EQ(written->PixelWidth(), composed->PixelWidth());
  EXPECT_EQ(written->Pixels(), composed->Pixels());
  std::filesystem::remove(path);
}

}  // namespace
}  // namespace ferlan::raster
