#include "forms/bitmap.hpp"

namespace ferlan::forms {

Bitmap::Bitmap(int width, int height, std::vector<Rgb> pixels)
    : width_(width), height_(height), pixels_(std::move(pixels)) {
  if (width < 0 || height < 0 ||
      pixels_.size() != static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {
    throw PlatformError::InvalidCall("bitmap size does not match its pixels");
  }
}

}  // namespace ferlan::forms
