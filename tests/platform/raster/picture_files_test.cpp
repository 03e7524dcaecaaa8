// Pictures from BMP and PNG bytes and files, and PNG output.
#include "raster/picture_files.hpp"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "editor/caret_bitmaps.hpp"

namespace ferlan::raster {
namespace {

// The caret's insert picture, top row first: K black, W white, Y yellow.
constexpr const char* kInsertionRows[] = {
    "WWWWWKWWWWW",
    "WWWWKYKWWWW",
    "WWWKYYYKWWW",
    "WWKYYYYYKWW",
    "KKYYYYYYYKK",
};

forms::Rgb RgbOf(char c) {
  switch (c) {
    case 'K': return {0, 0, 0};
    case 'Y': return {255, 255, 0};
    default: return {255, 255, 255};
  }
}

void PutLe(std::vector<std::uint8_t>& out, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

// A plain 24-bit BMP, rows bottom-up and padded to 4 bytes, as the caret's
// pictures are stored.
std::vector<std::uint8_t> Bmp24(const std::vector<std::string>& rows) {
  const auto width = static_cast<std::uint32_t>(rows[0].size());
  const auto height = static_cast<std::uint32_t>(rows.size());
  const std::uint32_t row_bytes = (width * 3 + 3) / 4 * 4;
  std::vector<std::uint8_t> out = {'B', 'M'};
  PutLe(out, 54 + row_bytes * height, 4);
  PutLe(out, 0, 4);
  PutLe(out, 54, 4);
  PutLe(out, 40, 4);
  PutLe(out, width, 4);
  PutLe(out, height, 4);
  PutLe(out, 1, 2);
  PutLe(out, 24, 2);
  for (int i = 0; i < 6; ++i) PutLe(out, 0, 4);
  for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
    for (char c : *row) {
      const forms::Rgb p = RgbOf(c);
      out.insert(out.end(), {p.b, p.g, p.r});
    }
    out.resize(out.size() + (row_bytes - width * 3), 0);
  }
  return out;
}

void ExpectRows(const forms::Bitmap& bitmap, const std::vector<std::string>& rows) {
  ASSERT_EQ(bitmap.PixelHeight(), static_cast<int>(rows.size()));
  ASSERT_EQ(bitmap.PixelWidth(), static_cast<int>(rows[0].size()));
  for (int y = 0; y < bitmap.PixelHeight(); ++y) {
    for (int x = 0; x < bitmap.PixelWidth(); ++x) {
      EXPECT_EQ(bitmap.Pixel(x, y), RgbOf(rows[y][x])) << "pixel " << x << "," << y;
    }
  }
}

int ErrorNumber(const std::function<void()>& f) {
  try {
    f();
  } catch (const PlatformError& error) {
    return error.Number();
  }
  return 0;
}

std::string TempPath(const std::string& name) {
  return (std::filesystem::temp_directory_path() /
          ("ferlan_raster_" + std::to_string(::getpid()) + "_" + name))
      .string();
}

TEST(PictureFilesTest, CaretBmpLoadsAsItsElevenByFivePixels) {
  const std::vector<std::string> rows(std::begin(kInsertionRows), std::end(kInsertionRows));
  const std::vector<std::uint8_t> bytes = Bmp24(rows);
  ASSERT_EQ(bytes.size(), 234u);  // the size of the stored caret pictures
  const auto picture = DecodePicture(bytes);
  ExpectRows(*picture, rows);
  EXPECT_EQ(picture->Width(), 11 * 15);
  EXPECT_EQ(picture->Height(), 5 * 15);
}

TEST(PictureFilesTest, EditorCaretPicturesLoadAsDrawn) {
  const std::vector<std::string> insertion(std::begin(kInsertionRows), std::end(kInsertionRows));
  ExpectRows(*DecodePicture(CaretInsertionImage()), insertion);
  ExpectRows(*DecodePicture(CaretSurchargeImage()), std::vector<std::string>(5, "KKKKKKKKKKK"));
}

TEST(PictureFilesTest, PngRoundTripsPixelForPixel) {
  const std::vector<std::string> rows(std::begin(kInsertionRows), std::end(kInsertionRows));
  const auto bmp = DecodePicture(Bmp24(rows));
  const std::vector<std::uint8_t> png = EncodePng(*bmp);
  ASSERT_GT(png.size(), 8u);
  EXPECT_EQ(png[1], 'P');
  const auto back = DecodePicture(png);
  ExpectRows(*back, rows);
}

TEST(PictureFilesTest, FilesLoadAndWrite) {
  const std::vector<std::string> rows = {"KWK", "YYY"};
  const std::string bmp_path = TempPath("caret.bmp");
  const std::string png_path = TempPath("caret.png");
  {
    const auto bytes = Bmp24(rows);
    std::ofstream(bmp_path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  }
  const auto from_bmp = LoadPictureFile(bmp_path);
  ExpectRows(*from_bmp, rows);
  WritePngFile(*from_bmp, png_path);
  ExpectRows(*LoadPictureFile(png_path), rows);
  std::filesystem::remove(bmp_path);
  std::filesystem::remove(png_path);
}

TEST(PictureFilesTest, BadPicturesAreInvalidCalls) {
  const std::vector<std::uint8_t> text = {'h', 'e', 'l', 'l', 'o'};
  EXPECT_EQ(ErrorNumber([&] { DecodePicture(text); }), 5);
  EXPECT_EQ(ErrorNumber([&] { DecodePicture({}); }), 5);
  // A PNG cut after its signature.
  const auto png = EncodePng(*DecodePicture(Bmp24({"KW"})));
  const std::vector<std::uint8_t> cut(png.begin(), png.begin() + 20);
  EXPECT_EQ(ErrorNumber([&] { DecodePicture(cut); }), 5);
  EXPECT_EQ(ErrorNumber([&] { LoadPictureFile(TempPath("missing.png")); }), 5);
  EXPECT_EQ(ErrorNumber([&] { EncodePng(forms::Bitmap(0, 0, {})); }), 5);
}

}  // namespace
}  // namespace ferlan::raster
