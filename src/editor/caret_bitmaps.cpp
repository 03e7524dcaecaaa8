// The caret pictures are drawn here as rows of letters, top row first, and
// turned into BMP bytes at compile time, so the picture and its file cannot
// drift apart.
#include "editor/caret_bitmaps.hpp"

#include <array>
#include <string_view>

namespace ferlan {
namespace {

using Rows = std::array<std::string_view, kCaretBitmapHeight>;

// K black, W white, Y yellow.
// clang-format off
constexpr Rows kInsertionRows = {
    "WWWWWKWWWWW",
    "WWWWKYKWWWW",
    "WWWKYYYKWWW",
    "WWKYYYYYKWW",
    "KKYYYYYYYKK",
};

constexpr Rows kSurchargeRows = {
    "KKKKKKKKKKK",
    "KKKKKKKKKKK",
    "KKKKKKKKKKK",
    "KKKKKKKKKKK",
    "KKKKKKKKKKK",
};
// clang-format on

constexpr int kFileHeaderBytes = 14;
constexpr int kInfoHeaderBytes = 40;
constexpr int kPixelOffset = kFileHeaderBytes + kInfoHeaderBytes;
// Each row of a BMP is padded to a multiple of 4 bytes: 33 becomes 36.
constexpr int kRowBytes = (kCaretBitmapWidth * 3 + 3) / 4 * 4;
constexpr int kPixelBytes = kRowBytes * kCaretBitmapHeight;
static_assert(kPixelOffset + kPixelBytes == kCaretBitmapBytes);

using Image = std::array<std::uint8_t, kCaretBitmapBytes>;

constexpr void PutLe(Image& out, int at, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) {
    out[static_cast<std::size_t>(at + i)] = static_cast<std::uint8_t>(value >> (8 * i));
  }
}

// Blue, green, red: the order of a pixel in a 24-bit BMP.
constexpr std::array<std::uint8_t, 3> Bgr(char letter) {
  switch (letter) {
    case 'K':
      return {0, 0, 0};
    case 'W':
      return {255, 255, 255};
    case 'Y':
      return {0, 255, 255};
    default:
      throw "caret picture rows hold only K, W and Y";
  }
}

constexpr Image MakeBmp(const Rows& rows) {
  Image out{};
  // BITMAPFILEHEADER
  out[0] = 'B';
  out[1] = 'M';
  PutLe(out, 2, kCaretBitmapBytes, 4);
  PutLe(out, 10, kPixelOffset, 4);
  // BITMAPINFOHEADER: positive height, so rows are stored bottom row first.
  PutLe(out, 14, kInfoHeaderBytes, 4);
  PutLe(out, 18, kCaretBitmapWidth, 4);
  PutLe(out, 22, kCaretBitmapHeight, 4);
  PutLe(out, 26, 1, 2);   // planes
  PutLe(out, 28, 24, 2);  // bits per pixel
  PutLe(out, 30, 0, 4);   // no compression
  PutLe(out, 34, kPixelBytes, 4);
  // Resolution, palette size and important colours stay 0.
  for (int stored = 0; stored < kCaretBitmapHeight; ++stored) {
    const std::string_view row = rows[static_cast<std::size_t>(kCaretBitmapHeight - 1 - stored)];
    const int base = kPixelOffset + stored * kRowBytes;
    for (int x = 0; x < kCaretBitmapWidth; ++x) {
      const auto bgr = Bgr(row[static_cast<std::size_t>(x)]);
      for (std::size_t c = 0; c < 3; ++c) {
        out[static_cast<std::size_t>(base + x * 3) + c] = bgr[c];
      }
    }
  }
  return out;
}

constexpr Image kInsertionImage = MakeBmp(kInsertionRows);
constexpr Image kSurchargeImage = MakeBmp(kSurchargeRows);

}  // namespace

std::span<const std::uint8_t> CaretInsertionImage() { return kInsertionImage; }
std::span<const std::uint8_t> CaretSurchargeImage() { return kSurchargeImage; }

}  // namespace ferlan
