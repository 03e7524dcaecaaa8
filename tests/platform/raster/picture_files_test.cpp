// Pictures from BMP and PNG bytes and files, and PNG output.
#include "raster/picture_files.hpp"

#include <gtest/gtest.h>

#include "editor/caret_bitmaps.hpp"
#include "support/session_test.hpp"

namespace ferlan::raster {
namespace {

// The caret's pictures, 11 x 5 pixels, top row first: K black, W white, Y yellow.
constexpr std::string_view kInsertion =
    "WWWWWKWWWWW"
    "WWWWKYKWWWW"
    "WWWKYYYKWWW"
    "WWKYYYYYKWW"
    "KKYYYYYYYKK";

void ExpectCaret(const forms::Bitmap& picture, std::string_view rows) {
  std::vector<forms::Rgb> pixels;
  const forms::Rgb black{}, white{255, 255, 255}, yellow{255, 255, 0};
  for (char c : rows) pixels.push_back(c == 'K' ? black : c == 'Y' ? yellow : white);
  EXPECT_EQ(std::pair(picture.PixelWidth(), picture.PixelHeight()), std::pair(11, 5));
  EXPECT_EQ(picture.Pixels(), pixels);
}

TEST(PictureFilesTest, CaretBmpsLoadAsDrawnAndComeBackFromPng) {
  ASSERT_EQ(CaretInsertionImage().size(), 234u);  // 24 bits, rows bottom-up padded to 36 bytes
  const auto insertion = DecodePicture(CaretInsertionImage());
  ExpectCaret(*insertion, kInsertion);
  ExpectCaret(*DecodePicture(CaretSurchargeImage()), std::string(55, 'K'));
  const std::vector<std::uint8_t> png = EncodePng(*insertion);
  EXPECT_EQ(std::string(png.begin() + 1, png.begin() + 4), "PNG");
  ExpectCaret(*DecodePicture(png), kInsertion);
}

TEST(PictureFilesTest, BadPicturesAreInvalidCalls) {
  const auto png = EncodePng(forms::Bitmap(2, 1, {{0, 0, 0}, {255, 255, 255}}));
  const std::vector<std::uint8_t> cases[] = {
      {'h', 'e', 'l', 'l', 'o'}, {}, {png.begin(), png.begin() + 20}};  // the last: a cut PNG
  for (const auto& bytes : cases) {
    ferlan::testing::ExpectPlatformError([&] { DecodePicture(bytes); }, 5);
  }
  ferlan::testing::ExpectPlatformError([] { LoadPictureFile("/nonexistent/caret.png"); }, 5);
  ferlan::testing::ExpectPlatformError([] { EncodePng(forms::Bitmap(0, 0, {})); }, 5);
}

}  // namespace
}  // namespace ferlan::raster
