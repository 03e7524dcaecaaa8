// BMP decoding: a hand-written 24-bit image, the same pixels in 32 bits,
// rows either way up, and what the decoder refuses; pictures and text
// through Global.
#include "forms/bmp_decoder.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "forms/bitmap.hpp"
#include "forms/global.hpp"
#include "support/session_test.hpp"

namespace ferlan::forms {
namespace {

using Bytes = std::vector<std::uint8_t>;
using ferlan::testing::ExpectPlatformError;

// 3 x 2 pixels, 24 bits, rows bottom-up and padded to 12 bytes, written out
// by hand: top row red, green, blue; bottom row white, black, yellow.
// clang-format off
const Bytes kHandmade{
    'B', 'M', 78, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0,                 // file header
    40, 0, 0, 0, 3, 0, 0, 0, 2, 0, 0, 0, 1, 0, 24, 0,               // size, 3 x 2, 24 bits
    0, 0, 0, 0, 24, 0, 0, 0, 0x13, 0x0B, 0, 0, 0x13, 0x0B, 0, 0,    // no compression
    0, 0, 0, 0, 0, 0, 0, 0,                                         // no palette
    0xFF, 0xFF, 0xFF, 0x00, 0x00, 0x00, 0x00, 0xFF, 0xFF, 0, 0, 0,  // bottom row
    0x00, 0x00, 0xFF, 0x00, 0xFF, 0x00, 0xFF, 0x00, 0x00, 0, 0, 0}; // top row
// clang-format on
const std::vector<Rgb> kTopFirst = {{255, 0, 0},     {0, 255, 0}, {0, 0, 255},
                                    {255, 255, 255}, {0, 0, 0},   {255, 255, 0}};

// Writes `v` little-endian at `at`, growing `b` when needed.
void Put32(Bytes& b, std::size_t at, std::uint32_t v) {
  if (b.size() < at + 4) b.resize(at + 4);
  for (std::size_t i = 0; i < 4; ++i) b[at + i] = static_cast<std::uint8_t>(v >> (8 * i));
}

Bytes With(Bytes b, std::size_t at, std::uint32_t v) {
  Put32(b, at, v);
  return b;
}

// The handmade pixels as 32 bits a pixel (B, G, R, x), or with channel
// masks putting R, G, B in the high three bytes; rows top first when
// `height` is negative.
Bytes ThirtyTwoBit(std::int32_t height, bool masks) {
  Bytes b(kHandmade.begin(), kHandmade.begin() + 54);
  Put32(b, 22, static_cast<std::uint32_t>(height));
  b[28] = 32;
  if (masks) {
    Put32(b, 30, 3);
    for (std::uint32_t mask : {0xFF000000u, 0x00FF0000u, 0x0000FF00u}) Put32(b, b.size(), mask);
  }
  Put32(b, 10, static_cast<std::uint32_t>(b.size()));
  for (std::size_t i = 0; i < 6; ++i) {
    const Rgb p = kTopFirst[height < 0 ? i : (i + 3) % 6];
    const std::uint32_t rgb = std::uint32_t{p.r} << 16 | std::uint32_t{p.g} << 8 | p.b;
    Put32(b, b.size(), masks ? rgb << 8 : rgb);
  }
  return With(b, 2, static_cast<std::uint32_t>(b.size()));
}

TEST(BmpDecoderTest, ReadsTwentyFourAndThirtyTwoBitImagesEitherWayUp) {
  auto bmp = DecodeBmp(kHandmade);
  EXPECT_EQ(bmp->Pixels(), kTopFirst);
  EXPECT_EQ(std::pair(bmp->Width(), bmp->Height()), std::pair(45.0F, 30.0F));  // 15 twips a pixel
  // The same bytes read top first: the rows swap.
  const std::vector<Rgb> swapped = {kTopFirst[3], kTopFirst[4], kTopFirst[5],
                                    kTopFirst[0], kTopFirst[1], kTopFirst[2]};
  EXPECT_EQ(DecodeBmp(With(kHandmade, 22, static_cast<std::uint32_t>(-2)))->Pixels(), swapped);
  const std::pair<int, bool> layouts[] = {{2, false}, {-2, false}, {2, true}};  // height, masks
  for (const auto& [height, masks] : layouts) {
    EXPECT_EQ(DecodeBmp(ThirtyTwoBit(height, masks))->Pixels(), kTopFirst) << height << masks;
  }
}

TEST(BmpDecoderTest, RefusesWhatItCannotRead) {
  const std::pair<Bytes, const char*> cases[] = {
      {Bytes(kHandmade.begin(), kHandmade.end() - 1), "cut short"},
      {Bytes(kHandmade.begin(), kHandmade.begin() + 20), "cut short"},
      {With(kHandmade, 10, 60), "cut short"},  // pixels past the end
      {Bytes{'G', 'I', 'F', '8'}, "no BM signature"},
      {With(kHandmade, 28, 8), "8 bits a pixel"},
      {With(kHandmade, 30, 1), "compression 1"},
      {With(kHandmade, 18, 0), "size 0 x 2"},
      {With(kHandmade, 18, 100000), "size 100000 x 2"},
      {With(kHandmade, 14, 12), "header of 12 bytes"}};
  for (const auto& c : cases) {
    ExpectPlatformError(
        [&] { DecodeBmp(c.first); }, 5,
        std::string("Invalid procedure call or argument: BMP image: ") + c.second);
  }
}

struct IdleLoop final : EventLoop {
  void DoEvents() override {}
  TimerRef CreateTimer(std::function<void()>) override { return nullptr; }
};

TEST(GlobalTest, ClipboardHoldsTextOnlyAndPicturesLoadFromBmpOrThroughThePngDecoder) {
  IdleLoop loop;
  Global global{loop, Screen(19200, 15360)};
  ferlan::Clipboard& clipboard = global.Clipboard();
  clipboard.SetText(u"12,50 €");
  EXPECT_EQ(clipboard.GetText(1), u"12,50 €");
  clipboard.Clear();
  EXPECT_EQ(clipboard.GetText(), u"");
  ExpectPlatformError([&] { clipboard.SetText(u"x", 2); }, 5);
  ExpectPlatformError([&] { clipboard.GetText(0xBF01); }, 5);

  auto picture = std::dynamic_pointer_cast<Bitmap>(global.LoadPicture(kHandmade));
  EXPECT_EQ(picture->Pixels(), kTopFirst);
  const std::vector<std::uint8_t> png{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0};
  ExpectPlatformError([&] { global.LoadPicture(png); }, 445);
  auto decoded = std::make_shared<Bitmap>(2, 1, std::vector<Rgb>(2));
  global.SetPngDecoder([&](std::span<const std::uint8_t> bytes) -> PictureRef {
    return bytes.size() == png.size() ? decoded : nullptr;
  });
  EXPECT_EQ(global.LoadPicture(png), decoded);
  ExpectPlatformError([&] { global.LoadPicture(std::vector<std::uint8_t>{'h', 'i'}); }, 5);
}

}  // namespace
}  // namespace ferlan::forms
