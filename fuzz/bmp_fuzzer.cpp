// The BMP decoder under arbitrary bytes. Invariants checked: it either
// refuses with error 5 or gives a bitmap with one pixel for each place, of
// at most 16384 pixels a side, and decoding the same bytes again gives the
// same pixels.
#include <cstddef>
#include <cstdint>
#include <span>

#include "forms/bmp_decoder.hpp"
#include "fuzz_text.hpp"

using ferlan::fuzz::Fail;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span<const std::uint8_t> bytes(data, size);
  std::shared_ptr<ferlan::forms::Bitmap> bitmap;
  try {
    bitmap = ferlan::forms::DecodeBmp(bytes);
  } catch (const ferlan::PlatformError& error) {
    if (error.Number() != 5) Fail("refusal other than error 5");
    return 0;
  }
  if (!bitmap) Fail("no bitmap and no error");
  const int w = bitmap->PixelWidth(), h = bitmap->PixelHeight();
  if (w < 0 || h < 0 || w > 16384 || h > 16384) Fail("side out of range");
  if (bitmap->Pixels().size() != static_cast<std::size_t>(w) * static_cast<std::size_t>(h)) {
    Fail("pixel count differs from the size");
  }
  if (!ferlan::forms::LooksLikeBmp(bytes)) Fail("decoded bytes that do not begin as a BMP");
  if (ferlan::forms::DecodeBmp(bytes)->Pixels() != bitmap->Pixels()) Fail("not deterministic");
  return 0;
}
