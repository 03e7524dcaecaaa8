// A picture made of pixels: what a loaded BMP or PNG file, a snapshot of a
// raster surface and a composed form are. Pixels are opaque, one 32-bit word
// each as 0x00RRGGBB, rows top first; the picture's size in twips is its size
// in pixels times 15.
#pragma once

#include <cstdint>
#include <vector>

#include "ferlan/host.hpp"

namespace ferlan::raster {

inline constexpr int kTwipsPerPixel = 15;

class PixelPicture final : public Picture {
 public:
  PixelPicture(int width, int height, std::vector<std::uint32_t> pixels);

  Single Width() const override { return static_cast<Single>(width_ * kTwipsPerPixel); }
  Single Height() const override { return static_cast<Single>(height_ * kTwipsPerPixel); }

  int PixelWidth() const { return width_; }
  int PixelHeight() const { return height_; }
  // 0x00RRGGBB, rows top first, PixelWidth() words a row.
  const std::vector<std::uint32_t>& Pixels() const { return pixels_; }
  // The colour at (x, y) as the platform writes colours, 0x00BBGGRR.
  Long ColourAt(int x, int y) const;

 private:
  int width_;
  int height_;
  std::vector<std::uint32_t> pixels_;
};

// Between the platform's 0x00BBGGRR and a pixel's 0x00RRGGBB.
constexpr std::uint32_t PixelOfColour(Long colour) {
  auto c = static_cast<std::uint32_t>(colour);
  return ((c & 0xFFu) << 16) | (c & 0xFF00u) | ((c >> 16) & 0xFFu);
}
constexpr Long ColourOfPixel(std::uint32_t pixel) {
  return static_cast<Long>(((pixel & 0xFFu) << 16) | (pixel & 0xFF00u) | ((pixel >> 16) & 0xFFu));
}

}  // namespace ferlan::raster
