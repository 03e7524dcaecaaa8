// Pictures from image files and pictures to PNG files, as the forms
// runtime's Bitmap. BMP images are read by the forms runtime's own reader;
// PNG is the raster back-end's (give DecodePng to Global::SetPngDecoder).
//
// Implemented:
//  [X] PNG: any kind libpng reads, through Cairo; transparency is laid on white
//  [X] BMP: what the forms runtime reads (24 and 32 bits, uncompressed)
//  [X] PNG output of a bitmap
// Missing:
//  [ ] GIF, JPEG, icons, metafiles
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "forms/bitmap.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::raster {

// A picture from the bytes of a BMP or PNG image, told apart by their first
// bytes. Errors: 5 for anything else or a damaged image.
std::shared_ptr<forms::Bitmap> DecodePicture(std::span<const std::uint8_t> bytes);
// Errors: 5 for a file that cannot be read, then as DecodePicture.
std::shared_ptr<forms::Bitmap> LoadPictureFile(const std::string& path);

// Errors: 5 for bytes that are not a whole PNG image.
std::shared_ptr<forms::Bitmap> DecodePng(std::span<const std::uint8_t> bytes);

// Errors: 5 for an empty bitmap, which PNG cannot hold; Host for a write
// that fails.
std::vector<std::uint8_t> EncodePng(const forms::Bitmap& bitmap);
void WritePngFile(const forms::Bitmap& bitmap, const std::string& path);

}  // namespace ferlan::raster

FERLAN_PUBLIC_END
