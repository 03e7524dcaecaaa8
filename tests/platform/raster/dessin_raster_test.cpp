// The kit's Dessin on a raster surface: a saved picture comes back pixel for
// pixel, at any depth of nesting.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "forms/bitmap.hpp"
#include "kit/dessin.hpp"
#include "platform/raster/raster_form_fixture.hpp"

namespace ferlan::raster {
namespace {

std::vector<forms::Rgb> PixelsOf(forms::PictureBox& surface) {
  auto bitmap = std::dynamic_pointer_cast<forms::Bitmap>(surface.Image());
  EXPECT_TRUE(bitmap);
  return bitmap ? bitmap->Pixels() : std::vector<forms::Rgb>{};
}

// Draws something that differs from level to level, through Dessin.
void DrawLevel(kit::Dessin& dessin, forms::PictureBox& zone, int level) {
  const Single top = 195 + 390 * level;
  dessin.Pave(zone, 105, top, 3000 + 300 * level, top + 300, level % 2 ? 0x00C00000 : 0x00800000);
  dessin.Texte(zone, 150, top + 30, u"Niveau " + String(1, static_cast<char16_t>(u'1' + level)),
               0x0000FFFF);
  dessin.Rectangle(zone, 0x000000C0, top - 30, 60, 4000, 400);
}

TEST(DessinRasterTest, ResImageBringsBackWhatMemImageSaved) {
  RasterForm f;
  kit::Dessin dessin(f.EnvRef());
  forms::PictureBox& zone = *f.surface;
  DrawLevel(dessin, zone, 0);
  const auto first = PixelsOf(zone);
  dessin.MemImage(zone);
  dessin.Efface(zone);
  dessin.Texte(zone, 0, 0, u"Autre \u00e9cran", 0);
  ASSERT_NE(PixelsOf(zone), first);
  dessin.ResImage(zone);
  EXPECT_EQ(PixelsOf(zone), first);
}

TEST(DessinRasterTest, ThreeNestedSavesComeBackInReverseOrder) {
  RasterForm f;
  kit::Dessin dessin(f.EnvRef());
  forms::PictureBox& zone = *f.surface;
  std::vector<std::vector<forms::Rgb>> shown;
  for (int level = 0; level < 3; ++level) {
    DrawLevel(dessin, zone, level);
    shown.push_back(PixelsOf(zone));
    dessin.MemImage(zone);
  }
  DrawLevel(dessin, zone, 3);
  for (int level = 2; level >= 0; --level) {
    SCOPED_TRACE(testing::Message() << "level " << level);
    dessin.ResImage(zone);
    EXPECT_EQ(PixelsOf(zone), shown[static_cast<std::size_t>(level)]);
  }
  // Nothing left to restore: the surface stays as it is.
  dessin.ResImage(zone);
  EXPECT_EQ(PixelsOf(zone), shown[0]);
}

TEST(DessinRasterTest, SavedPictureSurvivesAResizeInBetween) {
  // ResImage comes after the surface got back its saved size.
  RasterForm f;
  kit::Dessin dessin(f.EnvRef());
  forms::PictureBox& zone = *f.surface;
  DrawLevel(dessin, zone, 1);
  const auto saved = PixelsOf(zone);
  dessin.MemImage(zone);
  const Single width = zone.Width();
  zone.SetWidth(width + 3000);
  dessin.Efface(zone);
  zone.SetWidth(width);
  dessin.ResImage(zone);
  EXPECT_EQ(PixelsOf(zone), saved);
}

}  // namespace
}  // namespace ferlan::raster
