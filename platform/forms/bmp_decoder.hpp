// Reads BMP images: uncompressed 24 and 32 bits a pixel, rows bottom-up (a
// positive height) or top-down (a negative one), and 32-bit images with bit
// fields. Other kinds (palettes, run-length coding, 16 bits) are refused.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "forms/bitmap.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::forms {

// True when the bytes begin as a BMP file does ("BM").
bool LooksLikeBmp(std::span<const std::uint8_t> bytes);

// Errors: 5 with the reason for an image that is cut short, malformed, too
// large (over 16384 pixels a side) or of a kind not read here.
std::shared_ptr<Bitmap> DecodeBmp(std::span<const std::uint8_t> bytes);

}  // namespace ferlan::forms

FERLAN_PUBLIC_END
