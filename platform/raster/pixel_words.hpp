// Twips to pixels, and pixels as Cairo's RGB24 images hold them: one 32-bit word each, 0x00RRGGBB
// in native byte order. The raster back-end's conversions between those
// words, the platform's colours (0x00BBGGRR) and the forms runtime's Bitmap.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "forms/bitmap.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::raster {

inline constexpr int kTwipsPerPixel = 15;

// Every twips-to-pixel conversion of the raster surface and of the window
// ends here: a position or a size in pixels, as a double, made an int that
// any sum of a few of them and Cairo's fixed-point coordinates can hold.
// Far values stop at +-kMaxPixels, far beyond any image (32767 pixels a
// side); not a number is 0.
inline constexpr int kMaxPixels = 1 << 22;
int ClampedPixel(double pixels);

// The pixel that holds a point given in twips.
int PixelOfTwips(double twips);
// The pixel nearest to a point in twips (glyph origins, baselines).
int NearestPixelOfTwips(double twips);
// The pixels a size in twips covers: every pixel it reaches into.
int PixelsOfSize(double twips);
// Where a point in twips falls, in pixels, whole but not clamped: for
// clipping a line before its ends are made ints.
double PixelPosition(double twips);

constexpr std::uint32_t WordOfColour(Long colour) {
  auto c = static_cast<std::uint32_t>(colour);
  return ((c & 0xFFu) << 16) | (c & 0xFF00u) | ((c >> 16) & 0xFFu);
}
constexpr Long ColourOfWord(std::uint32_t word) {
  return static_cast<Long>(((word & 0xFFu) << 16) | (word & 0xFF00u) | ((word >> 16) & 0xFFu));
}
constexpr Long ColourOfRgb(forms::Rgb rgb) {
  return static_cast<Long>(rgb.r | (rgb.g << 8) | (rgb.b << 16));
}

// The bitmap's pixels as words, rows top first, PixelWidth() words a row.
std::vector<std::uint32_t> WordsOf(const forms::Bitmap& bitmap);
// A bitmap from rows of words `stride` bytes apart; the top byte is ignored.
std::shared_ptr<forms::Bitmap> BitmapOfWords(int width, int height, const unsigned char* data,
                                             int stride);

}  // namespace ferlan::raster

FERLAN_PUBLIC_END
