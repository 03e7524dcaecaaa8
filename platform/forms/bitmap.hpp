// A picture made of RGB pixels, as image files give them: the caret's
// pictures and any picture a host loads. Its size in twips is 15 a pixel.
#pragma once

#include <cstdint>
#include <vector>

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::forms {

struct Rgb {
  std::uint8_t r = 0;
  std::uint8_t g = 0;
  std::uint8_t b = 0;
  friend bool operator==(const Rgb&, const Rgb&) = default;
};

class Bitmap final : public Picture {
 public:
  static constexpr Single kTwipsPerPixel = 15;

  // `pixels` holds the rows top first, `width` pixels each. Errors: 5 when
  // the count is not width x height.
  Bitmap(int width, int height, std::vector<Rgb> pixels);

  int PixelWidth() const { return width_; }
  int PixelHeight() const { return height_; }
  Single Width() const override { return width_ * kTwipsPerPixel; }
  Single Height() const override { return height_ * kTwipsPerPixel; }
  // Pre: 0 <= x < PixelWidth(), 0 <= y < PixelHeight(); y counts from the top.
  Rgb Pixel(int x, int y) const { return pixels_[static_cast<std::size_t>(y) * width_ + x]; }
  const std::vector<Rgb>& Pixels() const { return pixels_; }

 private:
  int width_;
  int height_;
  std::vector<Rgb> pixels_;
};

}  // namespace ferlan::forms

FERLAN_PUBLIC_END
