#include "forms/bmp_decoder.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "support/session_test.hpp"

namespace ferlan::forms {
namespace {

using ferlan::testing::ExpectPlatformError;

constexpr Rgb kRed{255, 0, 0};
constexpr Rgb kGreen{0, 255, 0};
constexpr Rgb kBlue{0, 0, 255};
constexpr Rgb kWhite{255, 255, 255};
constexpr Rgb kBlack{0, 0, 0};
constexpr Rgb kYellow{255, 255, 0};

// 3 x 2 pixels, 24 bits, rows bottom-up and padded to 12 bytes, written out
// by hand: top row red, green, blue; bottom row white, black, yellow.
const std::vector<std::uint8_t> kHandmade{
    'B', 'M', 78, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0,           // file header
    40, 0, 0, 0, 3, 0, 0, 0, 2, 0, 0, 0, 1, 0, 24, 0,         // size, 3 x 2, 24 bits
    0, 0, 0, 0, 24, 0, 0, 0, 0x13, 0x0B, 0, 0, 0x13, 0x0B, 0, 0,  // no compression
    0, 0, 0, 0, 0, 0, 0, 0,                                   // no palette
    0xFF, 0xFF, 0xFF, 0x00, 0x00, 0x00, 0x00, 0xFF, 0xFF, 0, 0, 0,  // bottom row
    0x00, 0x00, 0xFF, 0x00, 0xFF, 0x00, 0xFF, 0x00, 0x00, 0, 0, 0,  // top row
};

void Put32(std::vector<std::uint8_t>& b, std::size_t at, std::uint32_t v) {
  for (int i = 0; i < 4; ++i) b[at + i] = static_cast<std::uint8_t>(v >> (8 * i));
}

// The handmade image's pixels again as 32 bits a pixel (B, G, R, x), with
// `height` -2 for rows top first, and with channel masks when `bit_fields`.
std::vector<std::uint8_t> ThirtyTwoBit(std::int32_t height, bool bit_fields) {
  const std::size_t masks = bit_fields ? 12 : 0;
  const std::size_t offset = 54 + masks;
  std::vector<std::uint8_t> b(offset + 24, 0);
  b[0] = 'B';
  b[1] = 'M';
  Put32(b, 2, static_cast<std::uint32_t>(b.size()));
  Put32(b, 10, static_cast<std::uint32_t>(offset));
  Put32(b, 14, 40);
  Put32(b, 18, 3);
  Put32(b, 22, static_cast<std::uint32_t>(height));
  b[26] = 1;
  b[28] = 32;
  Put32(b, 30, bit_fields ? 3 : 0);
  if (bit_fields) {
    // R, G, B in the high three bytes: 0xRRGGBBxx.
    Put32(b, 54, 0xFF000000);
    Put32(b, 58, 0x00FF0000);
    Put32(b, 62, 0x0000FF00);
  }
  const Rgb top[] = {kRed, kGreen, kBlue};
  const Rgb bottom[] = {kWhite, kBlack, kYellow};
  for (int row = 0; row < 2; ++row) {
    const Rgb* pixels = (height < 0) == (row == 0) ? top : bottom;
    for (int x = 0; x < 3; ++x) {
      const Rgb p = pixels[x];
      const std::uint32_t word = bit_fields
                                     ? (std::uint32_t{p.r} << 24 | std::uint32_t{p.g} << 16 |
                                        std::uint32_t{p.b} << 8)
                                     : (std::uint32_t{p.r} << 16 | std::uint32_t{p.g} << 8 | p.b);
      Put32(b, offset + static_cast<std::size_t>(row * 12 + x * 4), word);
    }
  }
  return b;
}

void ExpectHandmadePixels(const Bitmap& bmp) {
  ASSERT_EQ(bmp.PixelWidth(), 3);
  ASSERT_EQ(bmp.PixelHeight(), 2);
  EXPECT_EQ(bmp.Pixel(0, 0), kRed);
  EXPECT_EQ(bmp.Pixel(1, 0), kGreen);
  EXPECT_EQ(bmp.Pixel(2, 0), kBlue);
  EXPECT_EQ(bmp.Pixel(0, 1), kWhite);
  EXPECT_EQ(bmp.Pixel(1, 1), kBlack);
  EXPECT_EQ(bmp.Pixel(2, 1), kYellow);
}

TEST(BmpDecoderTest, ReadsAHandmadeBottomUpImage) {
  ASSERT_EQ(kHandmade.size(), 78u);
  auto bmp = DecodeBmp(kHandmade);
  ExpectHandmadePixels(*bmp);
  EXPECT_FLOAT_EQ(bmp->Width(), 45);  // 15 twips a pixel
  EXPECT_FLOAT_EQ(bmp->Height(), 30);
}

TEST(BmpDecoderTest, ReadsTopDownRows) {
  std::vector<std::uint8_t> flipped = kHandmade;
  Put32(flipped, 22, static_cast<std::uint32_t>(-2));
  // The same bytes read top first: the rows swap.
  auto bmp = DecodeBmp(flipped);
  EXPECT_EQ(bmp->Pixel(0, 0), kWhite);
  EXPECT_EQ(bmp->Pixel(2, 1), kBlue);
}

TEST(BmpDecoderTest, ReadsThirtyTwoBitImages) {
  ExpectHandmadePixels(*DecodeBmp(ThirtyTwoBit(2, false)));
  ExpectHandmadePixels(*DecodeBmp(ThirtyTwoBit(-2, false)));
  ExpectHandmadePixels(*DecodeBmp(ThirtyTwoBit(2, true)));
}

TEST(BmpDecoderTest, RefusesWhatItCannotRead) {
  struct Case {
    const char* what;
    std::vector<std::uint8_t> bytes;
    const char* detail;
  };
  auto with = [](std::size_t at, std::uint32_t v) {
    std::vector<std::uint8_t> b = kHandmade;
    Put32(b, at, v);
    return b;
  };
  std::vector<std::uint8_t> eight_bit = kHandmade;
  eight_bit[28] = 8;
  const Case cases[] = {
      {"cut", std::vector<std::uint8_t>(kHandmade.begin(), kHandmade.end() - 1), "cut short"},
      {"header only", std::vector<std::uint8_t>(kHandmade.begin(), kHandmade.begin() + 20),
       "cut short"},
      {"signature", std::vector<std::uint8_t>{'G', 'I', 'F', '8'}, "no BM signature"},
      {"palette", eight_bit, "8 bits a pixel"},
      {"run-length", with(30, 1), "compression 1"},
      {"no width", with(18, 0), "size 0 x 2"},
      {"huge", with(18, 100000), "size 100000 x 2"},
      {"old header", with(14, 12), "header of 12 bytes"},
      {"pixels past the end", with(10, 60), "cut short"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    ExpectPlatformError([&] { DecodeBmp(c.bytes); }, 5,
                        std::string("Invalid procedure call or argument: BMP image: ") + c.detail);
  }
}

}  // namespace
}  // namespace ferlan::forms
