// Pictures from image files and pictures to PNG files.
//
// Implemented:
//  [X] BMP: 1, 4, 8 bits with a palette, 16 and 32 bits plain or with bit
//      fields, 24 bits; bottom-up and top-down; OS/2 and Windows headers
//  [X] PNG: any kind libpng reads, through Cairo; transparency is laid on white
//  [X] PNG output of a pixel picture
// Missing:
//  [ ] Run-length encoded BMP (raises "not built"), GIF, JPEG, icons, metafiles
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "raster/pixel_picture.hpp"

namespace ferlan::raster {

// A picture from the bytes of a BMP or PNG image, told apart by their first
// bytes. Anything else, or a damaged image, is an invalid call.
std::shared_ptr<PixelPicture> DecodePicture(std::span<const std::uint8_t> bytes);
std::shared_ptr<PixelPicture> LoadPictureFile(const std::string& path);

std::shared_ptr<PixelPicture> DecodeBmp(std::span<const std::uint8_t> bytes);
std::shared_ptr<PixelPicture> DecodePng(std::span<const std::uint8_t> bytes);

std::vector<std::uint8_t> EncodePng(const PixelPicture& picture);
void WritePngFile(const PixelPicture& picture, const std::string& path);

}  // namespace ferlan::raster
