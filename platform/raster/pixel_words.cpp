// Between the forms runtime's RGB bitmaps and Cairo's 32-bit words.
#include "raster/pixel_words.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace ferlan::raster {

int ClampedPixel(double pixels) {
  if (std::isnan(pixels)) return 0;
  return static_cast<int>(std::clamp(pixels, -double{kMaxPixels}, double{kMaxPixels}));
}

double PixelPosition(double twips) {
  // The small allowance keeps a Single such as 104.99999 in pixel 7.
  return std::floor(twips / kTwipsPerPixel + 1e-4);
}

int PixelOfTwips(double twips) { return ClampedPixel(PixelPosition(twips)); }

int NearestPixelOfTwips(double twips) {
  return ClampedPixel(std::floor(twips / kTwipsPerPixel + 0.5));
}

int PixelsOfSize(double twips) {
  if (!(twips > 0)) return 0;
  return ClampedPixel(std::ceil(twips / kTwipsPerPixel - 1e-4));
}

std::vector<std::uint32_t> WordsOf(const forms::Bitmap& bitmap) {
  std::vector<std::uint32_t> words;
  words.reserve(bitmap.Pixels().size());
  for (const forms::Rgb& p : bitmap.Pixels()) {
    words.push_back((static_cast<std::uint32_t>(p.r) << 16) |
                    (static_cast<std::uint32_t>(p.g) << 8) | p.b);
  }
  return words;
}

std::shared_ptr<forms::Bitmap> BitmapOfWords(int width, int height, const unsigned char* data,
                                             int stride) {
  std::vector<forms::Rgb> pixels;
  pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  for (int y = 0; y < height; ++y) {
    const unsigned char* row = data + static_cast<std::ptrdiff_t>(y) * stride;
    for (int x = 0; x < width; ++x) {
      std::uint32_t word = 0;
      std::memcpy(&word, row + 4 * x, 4);
      pixels.push_back({static_cast<std::uint8_t>(word >> 16), static_cast<std::uint8_t>(word >> 8),
                        static_cast<std::uint8_t>(word)});
    }
  }
  return std::make_shared<forms::Bitmap>(width, height, std::move(pixels));
}

}  // namespace ferlan::raster
