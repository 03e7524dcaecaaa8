// Which reader a picture's bytes go to, and reading a picture file.
#include "raster/picture_files.hpp"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>

#include "forms/bmp_decoder.hpp"

namespace ferlan::raster {

namespace {
constexpr std::array<std::uint8_t, 8> kPngSignature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A,
                                                        '\n'};
}  // namespace

std::shared_ptr<forms::Bitmap> DecodePicture(std::span<const std::uint8_t> bytes) {
  if (forms::LooksLikeBmp(bytes)) return forms::DecodeBmp(bytes);
  if (bytes.size() >= kPngSignature.size() &&
      std::equal(kPngSignature.begin(), kPngSignature.end(), bytes.begin())) {
    return DecodePng(bytes);
  }
  throw PlatformError::InvalidCall("invalid picture: neither BMP nor PNG");
}

std::shared_ptr<forms::Bitmap> LoadPictureFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw PlatformError::InvalidCall("cannot open picture file " + path);
  std::vector<std::uint8_t> bytes((std::istreambuf_iterator<char>(in)),
                                  std::istreambuf_iterator<char>());
  return DecodePicture(bytes);
}

}  // namespace ferlan::raster
