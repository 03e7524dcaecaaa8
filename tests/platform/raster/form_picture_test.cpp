// The form as a person sees it, drawn in pixels: what Aff, the caret and the
// kit's Dessin put on the screen, read back from the composed picture.
#include "raster/form_picture.hpp"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <vector>

#include "editor/caret_bitmaps.hpp"
#include "headless/session.hpp"
#include "kit/dessin.hpp"
#include "raster/picture_files.hpp"
#include "raster/raster_canvas.hpp"
#include "support/session_test.hpp"

namespace ferlan::raster {
namespace {

constexpr Long kWhite = 0x00FFFFFF, kFace = 0x00F0F0F0;  // kFace: the form's back colour
// The surface's inner area, 600 x 400 pixels, starts after its 2-pixel border.
constexpr int kOx = 300 / 15 + 2, kOy = 600 / 15 + 2;

Long At(const forms::Bitmap& picture, int x, int y) { return ColourOfRgb(picture.Pixel(x, y)); }

// A headless session whose picture controls draw in pixels, its surface moved
// inside the form so that the form's own back colour shows around it.
class FormPictureTest : public ::testing::Test {
 protected:
  FormPictureTest() { testing::Place(*surface, 300, 600, 9060, 6060); }
  std::shared_ptr<forms::Bitmap> Compose() { return ComposeForm(*form, surface.get()); }
  std::vector<forms::Rgb> Shown() {  // what the surface's canvas shows
    return std::dynamic_pointer_cast<forms::Bitmap>(surface->Image())->Pixels();
  }
  std::shared_ptr<forms::PictureBox> Box(const char* name) {
    return std::dynamic_pointer_cast<forms::PictureBox>(form->Member(name));
  }

  headless::Session session{RasterCanvasFactory()};
  kit::EnvState& env = session.Env();
  std::shared_ptr<forms::Form> form = session.FormRef();
  std::shared_ptr<forms::PictureBox> surface = session.SurfaceRef();
  Control& toolbar = dynamic_cast<Control&>(*form->Member("BarreOutils"));
};

TEST_F(FormPictureTest, AffInCodeIShowsYellowTextOnABlueBoxExactlyWhereAffPutIt) {
  KySaisie ky;
  const String text = u"FACTURE N\u00b0 1024";
  const Long y = 390;
  const Single x = 210;
  ky.AfficheT(y, x, u"I", text);
  // The box of Aff: from (X, Y) to (X + W, Y + HauteurTexte - 2 x MargeY),
  // W being the measured width rounded.
  const int x0 = kOx + PixelOfTwips(x), y0 = kOy + PixelOfTwips(y);
  const int x1 = kOx + PixelOfTwips(x + static_cast<double>(CLng(ky.LargeurTexte(text))));
  const int y1 = kOy + PixelOfTwips(y + static_cast<double>(ky.HauteurTexte()) - 2 * env.MargeY);
  const auto picture = Compose();
  ASSERT_EQ(std::pair(picture->PixelWidth(), picture->PixelHeight()),
            std::pair((12000 - 120) / 15, (9000 - 450) / 15));
  int yellow = 0;
  for (int py = kOy; py < kOy + 400; ++py) {
    for (int px = kOx; px < kOx + 600; ++px) {
      const Long c = At(*picture, px, py);
      if (px < x0 || px > x1 || py < y0 || py > y1) {
        ASSERT_EQ(c, kWhite) << "pixel " << px << "," << py;
        continue;
      }
      // Yellow over blue: any blend of the two has red = green, blue at most 0xC0.
      const int r = c & 0xFF, g = (c >> 8) & 0xFF, b = (c >> 16) & 0xFF;
      ASSERT_TRUE(r == g && b <= 0xC0 && (r != 0 || b != 0))
          << "pixel " << px << "," << py << " is " << std::hex << c;
      yellow += c == env.Jaune ? 1 : 0;
    }
  }
  EXPECT_GT(yellow, 30);
}

TEST_F(FormPictureTest, ToolbarCaretAndMessageZoneShowOnlyWhenVisible) {
  auto black = [](const forms::Bitmap& p) {
    return std::count(p.Pixels().begin(), p.Pixels().end(), forms::Rgb{0, 0, 0});
  };
  auto caret = Box("Caret"), zone = Box("zoneMessage");
  caret->SetPicture(DecodePicture(CaretSurchargeImage()));  // 11 x 5, all black
  testing::Place(*caret, 1500, 600, 165, 75);
  // The message zone as AfficheZoneMessage places it: touching the surface's lower edge.
  zone->SetPicture(std::make_shared<forms::Bitmap>(4, 2, std::vector<forms::Rgb>(8, {192, 0, 0})));
  testing::Place(*zone, surface->Left() + (surface->Width() - 60) / 2,
                 surface->Top() + surface->Height(), 60, 30);
  const int zx = PixelOfTwips(zone->Left()), zy = PixelOfTwips(zone->Top());
  auto picture = Compose();
  EXPECT_EQ(At(*picture, 100, 5), kFace);
  EXPECT_EQ(black(*picture), 0);
  EXPECT_EQ(At(*picture, zx, zy), kFace);

  toolbar.SetVisible(true);
  caret->SetVisible(true);
  zone->SetVisible(true);
  picture = Compose();
  // The toolbar spans the form's width and its own 420 twips, then the form shows.
  EXPECT_NE(At(*picture, 100, 5), kFace);
  EXPECT_EQ(At(*picture, picture->PixelWidth() - 1, 5), At(*picture, 100, 5));
  EXPECT_NE(At(*picture, 100, 420 / 15 - 1), kFace);
  EXPECT_EQ(At(*picture, 100, 420 / 15), kFace);
  EXPECT_EQ(black(*picture), 11 * 5);
  EXPECT_EQ(std::tuple(At(*picture, kOx + 100, kOy + 40), At(*picture, kOx + 110, kOy + 44),
                       At(*picture, kOx + 99, kOy + 40)),
            std::tuple(0, 0, kWhite));  // the caret's corners and the ground left of it
  EXPECT_EQ(
      std::tuple(At(*picture, zx, zy), At(*picture, zx + 3, zy + 1), At(*picture, zx + 4, zy)),
      std::tuple(0x000000C0, 0x000000C0, kFace));  // the zone's corners and right of it

  // The caret's picture is stretched to the control's width, as wide as a letter.
  caret->SetWidth(135);
  EXPECT_EQ(black(*Compose()), 9 * 5);
}

// The host's own picture controls show on the surface, in its scale and
// clipped to it, while Visible: here one placed under a line as ImageSD
// places it (Left, Top in the surface's twips).
TEST_F(FormPictureTest, HostPictureControlsShowAsChildrenOfTheSurface) {
  auto photo = session.NewPictureBox();
  photo->SetPicture(
      std::make_shared<forms::Bitmap>(4, 3, std::vector<forms::Rgb>(12, {0, 128, 0})));
  testing::Place(*photo, 1500, 600, 60, 45);
  photo->SetVisible(false);
  EXPECT_EQ(At(*Compose(), kOx + 100, kOy + 40), kWhite);
  photo->SetVisible(true);
  auto picture = Compose();
  EXPECT_EQ(std::tuple(At(*picture, kOx + 100, kOy + 40), At(*picture, kOx + 103, kOy + 42),
                       At(*picture, kOx + 104, kOy + 40)),
            std::tuple(0x00008000, 0x00008000, kWhite));  // its corners, and right of it
  EXPECT_EQ(ChildRect(*photo, *surface), (PixelRect{kOx + 100, kOy + 40, 4, 3}));
  // Past the surface's right edge it is cut there.
  photo->SetLeft(599 * 15);
  picture = Compose();
  EXPECT_EQ(At(*picture, kOx + 599, kOy + 40), 0x00008000);
  EXPECT_NE(At(*picture, kOx + 600, kOy + 40), 0x00008000);  // the surface's border
}

// A picture kept from before and redrawn only inside the rectangles the
// canvas reports drawn on is the whole picture composed afresh; those
// rectangles cover what was drawn, and little else.
TEST_F(FormPictureTest, RedrawingOnlyWhatWasDrawnGivesTheWholePicture) {
  const PixelSize size = FormPixelSize(*form);
  std::vector<std::uint32_t> kept(static_cast<std::size_t>(size.width) * size.height);
  auto* data = reinterpret_cast<unsigned char*>(kept.data());
  ComposeFormOnto(*form, surface.get(), data, size, size.width * 4);
  auto& canvas = dynamic_cast<RasterCanvas&>(surface->GetCanvas());
  canvas.TakeDamage();
  KySaisie ky;
  ky.AfficheT(390, 210, u"I", u"Dupont");
  ky.AfficheT(3900, 4500, u"N", u"Curseur 3");
  std::vector<PixelRect> damage;
  for (const PixelRect& r : canvas.TakeDamage()) damage.push_back(CanvasDamageOnForm(*surface, r));
  ASSERT_EQ(damage.size(), 2u);  // two lines apart stay apart
  long area = 0;
  for (const PixelRect& r : damage) area += static_cast<long>(r.w) * r.h;
  EXPECT_LT(area, 600 * 40);
  ComposeFormOnto(*form, surface.get(), data, size, size.width * 4, &damage);
  const auto whole = Compose();
  int differing = 0;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      differing += ColourOfWord(kept[static_cast<std::size_t>(y) * size.width + x] & 0xFFFFFF) !=
                   At(*whole, x, y);
    }
  }
  EXPECT_EQ(differing, 0);
  EXPECT_TRUE(canvas.TakeDamage().empty());
  canvas.Clear(kWhite);
  EXPECT_EQ(canvas.TakeDamage(), (std::vector<PixelRect>{{0, 0, 600, 400}}));
}

TEST_F(FormPictureTest, PngFileShowsWhatTheComposedPictureShows) {
  toolbar.SetVisible(true);
  KySaisie{}.AfficheT(195, 105, u"Rouge", u"Erreur de saisie");
  const std::string path = ::testing::TempDir() + "form_" + std::to_string(::getpid()) + ".png";
  WriteFormPng(*form, path);  // without a surface given, the form's "ZoneAff" is the surface
  const auto written = LoadPictureFile(path);
  EXPECT_EQ(written->PixelWidth(), Compose()->PixelWidth());
  EXPECT_EQ(written->Pixels(), Compose()->Pixels());
  std::filesystem::remove(path);
}

TEST_F(FormPictureTest, DessinsNestedSavesComeBackPixelForPixelLastFirst) {
  kit::Dessin dessin({std::shared_ptr<void>(), &env});  // shares the session's environment
  std::vector<std::vector<forms::Rgb>> shown;
  for (int level = 0; level < 3; ++level) {
    const Single top = 195 + 390 * level;
    dessin.Pave(*surface, 105, top, 3000 + 300 * level, top + 300, level ? 0x00C00000 : 0x00800000);
    dessin.Texte(*surface, 150, top + 30, u"Niveau " + String(level + 1, u'I'), 0x0000FFFF);
    dessin.Rectangle(*surface, 0x000000C0, top - 30, 60, 4000, 400);
    shown.push_back(Shown());
    dessin.MemImage(*surface);
  }
  // Another screen, on a surface that grew and got its size back.
  surface->SetWidth(12060);
  dessin.Efface(*surface);
  dessin.Texte(*surface, 0, 0, u"Autre \u00e9cran", 0);
  surface->SetWidth(9060);
  ASSERT_NE(Shown(), shown[2]);
  for (int level = 2; level >= 0; --level) {
    dessin.ResImage(*surface);
    EXPECT_EQ(Shown(), shown[static_cast<std::size_t>(level)]) << "level " << level;
  }
  dessin.ResImage(*surface);  // nothing left to restore: the surface stays as it is
  EXPECT_EQ(Shown(), shown[0]);
}

// Bad bytes and files, as pictures.
TEST(PictureFilesTest, BadPicturesAreInvalidCalls) {
  const auto png = EncodePng(forms::Bitmap(2, 1, {{0, 0, 0}, {255, 255, 255}}));
  const std::vector<std::uint8_t> cases[] = {
      {'h', 'e', 'l', 'l', 'o'}, {}, {png.begin(), png.begin() + 20}};  // the last: a cut PNG
  for (const auto& bytes : cases) {
    ferlan::testing::ExpectPlatformError([&] { DecodePicture(bytes); }, 5);
  }
  ferlan::testing::ExpectPlatformError([] { LoadPictureFile("/nonexistent/caret.png"); }, 5);
  ferlan::testing::ExpectPlatformError([] { EncodePng(forms::Bitmap(0, 0, {})); }, 5);
}

}  // namespace
}  // namespace ferlan::raster
