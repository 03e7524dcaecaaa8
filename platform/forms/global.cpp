#include "forms/global.hpp"

#include <algorithm>
#include <array>

#include "forms/bmp_decoder.hpp"

namespace ferlan::forms {

namespace {
bool LooksLikePng(std::span<const std::uint8_t> bytes) {
  static constexpr std::array<std::uint8_t, 8> kSignature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A,
                                                          '\n'};
  return bytes.size() >= kSignature.size() &&
         std::equal(kSignature.begin(), kSignature.end(), bytes.begin());
}
}  // namespace

Global::Global(EventLoop& loop, forms::Screen screen, std::unique_ptr<ferlan::Clipboard> clipboard)
    : loop_(loop), screen_(screen), clipboard_(std::move(clipboard)) {
  if (!clipboard_) clipboard_ = std::make_unique<forms::Clipboard>();
}

TimerRef Global::CreateTimer(std::function<void()> on_tick) {
  return loop_.CreateTimer(std::move(on_tick));
}

PictureRef Global::LoadPicture(std::span<const std::uint8_t> image) {
  if (LooksLikeBmp(image)) return DecodeBmp(image);
  if (LooksLikePng(image)) {
    if (!png_decoder_) throw PlatformError::ActionNotSupported(
          "PNG pictures without the raster back-end");
    return png_decoder_(image);
  }
  throw PlatformError::InvalidCall("LoadPicture: neither a BMP nor a PNG image");
}

}  // namespace ferlan::forms
