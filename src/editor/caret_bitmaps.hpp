// The two pictures of the field editor's caret, as the bytes of plain BMP
// files: 11 x 5 pixels, 24 bits per pixel, 234 bytes each.
#pragma once

#include <cstdint>
#include <span>

namespace ferlan {

inline constexpr int kCaretBitmapWidth = 11;
inline constexpr int kCaretBitmapHeight = 5;
inline constexpr int kCaretBitmapBytes = 234;

// An arrowhead pointing up at the text: black outline, yellow inside, white
// around it. Shown while Insertion is True.
std::span<const std::uint8_t> CaretInsertionImage();
// A solid black bar. Shown in overwrite mode.
std::span<const std::uint8_t> CaretSurchargeImage();

}  // namespace ferlan
