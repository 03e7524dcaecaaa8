// Pixel pictures: the one representation that loaders, snapshots and the
// form composer share.
#include "raster/pixel_picture.hpp"

#include <utility>

namespace ferlan::raster {

PixelPicture::PixelPicture(int width, int height, std::vector<std::uint32_t> pixels)
    : width_(width), height_(height), pixels_(std::move(pixels)) {
  // Invariant: one word per pixel; a loader that breaks this is a bug of ours.
  if (width_ < 0 || height_ < 0 ||
      pixels_.size() != static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)) {
    throw PlatformError::InvalidCall("picture size does not match its pixels");
  }
}

Long PixelPicture::ColourAt(int x, int y) const {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) throw PlatformError::SubscriptOutOfRange();
  return ColourOfPixel(pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                               static_cast<std::size_t>(x)] &
                       0xFFFFFFu);
}

}  // namespace ferlan::raster
