// BMP decoding. The caret's pictures are 11 x 5 images of 24 bits, but any
// picture a host hands the message zone may come in, so the usual kinds of
// uncompressed BMP are read. Every read is checked against the buffer: the
// bytes may come from anywhere.
#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "raster/picture_files.hpp"

namespace ferlan::raster {

namespace {

constexpr std::uint32_t kRgb = 0;
constexpr std::uint32_t kRle8 = 1;
constexpr std::uint32_t kRle4 = 2;
constexpr std::uint32_t kBitFields = 3;
constexpr std::uint32_t kAlphaBitFields = 6;
constexpr std::size_t kFileHeader = 14;
// A picture larger than this is refused rather than allocated.
constexpr std::int64_t kMaxPixels = 64LL * 1024 * 1024;

[[noreturn]] void Invalid(std::string_view why) {
  throw PlatformError::InvalidCall("invalid BMP picture: " + std::string(why));
}

class Reader {
 public:
  explicit Reader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}
  std::uint32_t U32(std::size_t at) const {
    Need(at, 4);
    return static_cast<std::uint32_t>(bytes_[at]) | (static_cast<std::uint32_t>(bytes_[at + 1]) << 8) |
           (static_cast<std::uint32_t>(bytes_[at + 2]) << 16) |
           (static_cast<std::uint32_t>(bytes_[at + 3]) << 24);
  }
  std::int32_t I32(std::size_t at) const { return static_cast<std::int32_t>(U32(at)); }
  std::uint16_t U16(std::size_t at) const {
    Need(at, 2);
    return static_cast<std::uint16_t>(bytes_[at] | (bytes_[at + 1] << 8));
  }
  std::uint8_t U8(std::size_t at) const {
    Need(at, 1);
    return bytes_[at];
  }
  void Need(std::size_t at, std::size_t count) const {
    if (at > bytes_.size() || count > bytes_.size() - at) Invalid("cut short");
  }

 private:
  std::span<const std::uint8_t> bytes_;
};

// One colour channel under a bit mask, scaled to 8 bits.
struct Channel {
  std::uint32_t mask = 0;
  int shift = 0;
  std::uint32_t max = 0;

  explicit Channel(std::uint32_t m) : mask(m) {
    if (mask == 0) return;
    while (((mask >> shift) & 1u) == 0) ++shift;
    max = mask >> shift;
    // A mask with holes in it is no colour channel.
    if ((max & (max + 1)) != 0) Invalid("bit field mask with gaps");
  }
  std::uint32_t Of(std::uint32_t word) const {
    if (mask == 0) return 0;
    return (((word & mask) >> shift) * 255 + max / 2) / max;
  }
};

}  // namespace

std::shared_ptr<PixelPicture> DecodeBmp(std::span<const std::uint8_t> bytes) {
  Reader in(bytes);
  if (in.U8(0) != 'B' || in.U8(1) != 'M') Invalid("no BM signature");
  const std::uint32_t data_offset = in.U32(10);
  const std::uint32_t header_size = in.U32(kFileHeader);
  const bool core = header_size == 12;
  if (!core && header_size < 40) Invalid("unknown header");

  std::int64_t width = 0;
  std::int64_t height = 0;
  unsigned bits = 0;
  std::uint32_t compression = kRgb;
  std::uint32_t colours_used = 0;
  if (core) {
    width = in.U16(kFileHeader + 4);
    height = in.U16(kFileHeader + 6);
    bits = in.U16(kFileHeader + 10);
  } else {
    width = in.I32(kFileHeader + 4);
    height = in.I32(kFileHeader + 8);
    bits = in.U16(kFileHeader + 14);
    compression = in.U32(kFileHeader + 16);
    colours_used = in.U32(kFileHeader + 32);
  }
  // A negative height is a picture stored top row first.
  const bool top_down = height < 0;
  if (top_down) height = -height;
  if (width <= 0 || height <= 0 || width * height > kMaxPixels) Invalid("bad size");
  if (compression == kRle8 || compression == kRle4) {
    throw PlatformError::NotBuilt("run-length encoded BMP pictures");
  }
  if (compression != kRgb && compression != kBitFields && compression != kAlphaBitFields) {
    Invalid("unknown compression");
  }

  std::array<std::uint32_t, 3> masks{};
  const bool fields = compression == kBitFields || compression == kAlphaBitFields;
  if (fields) {
    if (bits != 16 && bits != 32) Invalid("bit fields need 16 or 32 bits");
    // The masks follow a 40-byte header and sit inside any longer one.
    for (std::size_t i = 0; i < 3; ++i) masks[i] = in.U32(kFileHeader + 40 + 4 * i);
  } else if (bits == 16) {
    masks = {0x7C00u, 0x03E0u, 0x001Fu};
  } else if (bits == 32) {
    masks = {0xFF0000u, 0x00FF00u, 0x0000FFu};
  }
  const Channel red(masks[0]), green(masks[1]), blue(masks[2]);

  std::vector<std::uint32_t> palette;
  if (bits == 1 || bits == 4 || bits == 8) {
    std::size_t count = colours_used != 0 ? colours_used : (std::size_t{1} << bits);
    if (count > 256) Invalid("palette too long");
    const std::size_t entry = core ? 3 : 4;
    std::size_t at = kFileHeader + header_size + (compression == kBitFields ? 12 : 0);
    palette.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
      in.Need(at + i * entry, 3);
      palette[i] = (static_cast<std::uint32_t>(in.U8(at + i * entry + 2)) << 16) |
                   (static_cast<std::uint32_t>(in.U8(at + i * entry + 1)) << 8) |
                   in.U8(at + i * entry);
    }
  } else if (bits != 16 && bits != 24 && bits != 32) {
    Invalid("unsupported bits per pixel");
  }

  const auto w = static_cast<std::size_t>(width);
  const auto h = static_cast<std::size_t>(height);
  const std::size_t row_bytes = (w * bits + 31) / 32 * 4;  // rows end on 4 bytes
  in.Need(data_offset, row_bytes * h);

  std::vector<std::uint32_t> pixels(w * h);
  for (std::size_t row = 0; row < h; ++row) {
    const std::size_t src = data_offset + row * row_bytes;
    const std::size_t dst_row = top_down ? row : h - 1 - row;
    std::uint32_t* dst = pixels.data() + dst_row * w;
    for (std::size_t x = 0; x < w; ++x) {
      std::uint32_t pixel = 0;
      switch (bits) {
        case 1:
        case 4:
        case 8: {
          const std::size_t bit = x * bits;
          const unsigned byte = in.U8(src + bit / 8);
          const unsigned index = (byte >> (8 - bits - bit % 8)) & ((1u << bits) - 1);
          if (index >= palette.size()) Invalid("colour index beyond the palette");
          pixel = palette[index];
          break;
        }
        case 16: {
          const std::uint32_t word = in.U16(src + x * 2);
          pixel = (red.Of(word) << 16) | (green.Of(word) << 8) | blue.Of(word);
          break;
        }
        case 24:
          pixel = (static_cast<std::uint32_t>(in.U8(src + x * 3 + 2)) << 16) |
                  (static_cast<std::uint32_t>(in.U8(src + x * 3 + 1)) << 8) | in.U8(src + x * 3);
          break;
        default: {
          const std::uint32_t word = in.U32(src + x * 4);
          pixel = (red.Of(word) << 16) | (green.Of(word) << 8) | blue.Of(word);
          break;
        }
      }
      dst[x] = pixel;
    }
  }
  return std::make_shared<PixelPicture>(static_cast<int>(w), static_cast<int>(h),
                                        std::move(pixels));
}

}  // namespace ferlan::raster
