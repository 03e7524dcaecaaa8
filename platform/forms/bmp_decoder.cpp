#include "forms/bmp_decoder.hpp"

#include <bit>
#include <cstdlib>
#include <string>

namespace ferlan::forms {

namespace {

constexpr std::size_t kFileHeaderSize = 14;
constexpr std::uint32_t kInfoHeaderSize = 40;
constexpr std::uint32_t kRgb = 0;        // uncompressed
constexpr std::uint32_t kBitFields = 3;  // uncompressed with channel masks
constexpr std::int64_t kMaxSide = 16384;

[[noreturn]] void Refuse(const std::string& why) {
  throw PlatformError::InvalidCall("BMP image: " + why);
}

class Reader {
 public:
  explicit Reader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}
  std::uint32_t U32(std::size_t at) const {
    Need(at, 4);
    return static_cast<std::uint32_t>(bytes_[at]) | static_cast<std::uint32_t>(bytes_[at + 1]) << 8 |
           static_cast<std::uint32_t>(bytes_[at + 2]) << 16 |
           static_cast<std::uint32_t>(bytes_[at + 3]) << 24;
  }
  std::int32_t I32(std::size_t at) const { return static_cast<std::int32_t>(U32(at)); }
  std::uint16_t U16(std::size_t at) const {
    Need(at, 2);
    return static_cast<std::uint16_t>(bytes_[at] | bytes_[at + 1] << 8);
  }
  std::uint8_t U8(std::size_t at) const {
    Need(at, 1);
    return bytes_[at];
  }
  void Need(std::size_t at, std::size_t count) const {
    if (at > bytes_.size() || count > bytes_.size() - at) Refuse("cut short");
  }

 private:
  std::span<const std::uint8_t> bytes_;
};

// One colour channel of a bit-field image: where its bits lie and how many.
struct Channel {
  std::uint32_t mask = 0;
  int shift = 0;
  int bits = 0;

  explicit Channel(std::uint32_t m) : mask(m) {
    if (m == 0) Refuse("empty channel mask");
    shift = std::countr_zero(m);
    bits = std::popcount(m);
    if (bits < 32 && (m >> shift) != (std::uint32_t{1} << bits) - 1) {
      Refuse("channel mask with gaps");
    }
  }
  std::uint8_t Of(std::uint32_t pixel) const {
    const std::uint32_t v = (pixel & mask) >> shift;
    if (bits >= 8) return static_cast<std::uint8_t>(v >> (bits - 8));
    // Scale a narrow channel to the full range: max maps to 255.
    const std::uint32_t max = (std::uint32_t{1} << bits) - 1;
    return static_cast<std::uint8_t>((v * 255 + max / 2) / max);
  }
};

}  // namespace

bool LooksLikeBmp(std::span<const std::uint8_t> bytes) {
  return bytes.size() >= 2 && bytes[0] == 'B' && bytes[1] == 'M';
}

std::shared_ptr<Bitmap> DecodeBmp(std::span<const std::uint8_t> bytes) {
  if (!LooksLikeBmp(bytes)) Refuse("no BM signature");
  const Reader in(bytes);
  const std::uint32_t pixel_offset = in.U32(10);
  const std::uint32_t info_size = in.U32(kFileHeaderSize);
  if (info_size < kInfoHeaderSize) Refuse("header of " + std::to_string(info_size) + " bytes");
  const std::int32_t width = in.I32(kFileHeaderSize + 4);
  const std::int32_t raw_height = in.I32(kFileHeaderSize + 8);
  const std::uint16_t planes = in.U16(kFileHeaderSize + 12);
  const std::uint16_t bit_count = in.U16(kFileHeaderSize + 14);
  const std::uint32_t compression = in.U32(kFileHeaderSize + 16);

  if (planes != 1) Refuse("planes other than 1");
  if (bit_count != 24 && bit_count != 32) {
    Refuse(std::to_string(bit_count) + " bits a pixel");
  }
  if (width <= 0 || raw_height == 0 || width > kMaxSide ||
      std::llabs(static_cast<long long>(raw_height)) > kMaxSide) {
    Refuse("size " + std::to_string(width) + " x " + std::to_string(raw_height));
  }
  const bool top_down = raw_height < 0;
  const int height = static_cast<int>(std::llabs(static_cast<long long>(raw_height)));

  // Channel masks: bit fields give them after the 40-byte header (or inside
  // a longer one, at the same place); plain 32-bit images are B, G, R, x.
  std::uint32_t red_mask = 0x00FF0000;
  std::uint32_t green_mask = 0x0000FF00;
  std::uint32_t blue_mask = 0x000000FF;
  if (compression == kBitFields) {
    if (bit_count != 32) Refuse("bit fields need 32 bits a pixel");
    const std::size_t masks_at = kFileHeaderSize + kInfoHeaderSize;
    red_mask = in.U32(masks_at);
    green_mask = in.U32(masks_at + 4);
    blue_mask = in.U32(masks_at + 8);
  } else if (compression != kRgb) {
    Refuse("compression " + std::to_string(compression));
  }
  const Channel red(red_mask);
  const Channel green(green_mask);
  const Channel blue(blue_mask);

  const std::size_t bytes_per_pixel = bit_count / 8;
  // Rows are padded to a multiple of four bytes.
  const std::size_t stride = (static_cast<std::size_t>(width) * bytes_per_pixel + 3) / 4 * 4;
  in.Need(pixel_offset, stride * static_cast<std::size_t>(height));

  std::vector<Rgb> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  for (int row = 0; row < height; ++row) {
    const int y = top_down ? row : height - 1 - row;
    const std::size_t row_at = pixel_offset + static_cast<std::size_t>(row) * stride;
    for (int x = 0; x < width; ++x) {
      const std::size_t at = row_at + static_cast<std::size_t>(x) * bytes_per_pixel;
      Rgb& p = pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
      if (bit_count == 24) {
        p = Rgb{in.U8(at + 2), in.U8(at + 1), in.U8(at)};
      } else {
        const std::uint32_t v = in.U32(at);
        p = Rgb{red.Of(v), green.Of(v), blue.Of(v)};
      }
    }
  }
  return std::make_shared<Bitmap>(width, height, std::move(pixels));
}

}  // namespace ferlan::forms
