// PNG through Cairo: reading bytes, writing bytes and files. Cairo gives
// premultiplied ARGB; a picture of the platform is opaque, so whatever is
// transparent is laid on white, as a picture control with a white back
// colour would show it.
#include <cairo.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "raster/picture_files.hpp"
#include "raster/pixel_words.hpp"

namespace ferlan::raster {

namespace {

struct ByteSource {
  std::span<const std::uint8_t> bytes;
  std::size_t at = 0;
};

cairo_status_t ReadBytes(void* closure, unsigned char* data, unsigned int length) {
  auto* source = static_cast<ByteSource*>(closure);
  if (length > source->bytes.size() - source->at) return CAIRO_STATUS_READ_ERROR;
  std::memcpy(data, source->bytes.data() + source->at, length);
  source->at += length;
  return CAIRO_STATUS_SUCCESS;
}

cairo_status_t AppendBytes(void* closure, const unsigned char* data, unsigned int length) {
  auto* out = static_cast<std::vector<std::uint8_t>*>(closure);
  out->insert(out->end(), data, data + length);
  return CAIRO_STATUS_SUCCESS;
}

struct SurfaceDeleter {
  void operator()(cairo_surface_t* s) const { cairo_surface_destroy(s); }
};
using SurfacePtr = std::unique_ptr<cairo_surface_t, SurfaceDeleter>;

// A Cairo surface over `words`, which must outlive it.
SurfacePtr SurfaceOf(std::vector<std::uint32_t>& words, int width, int height) {
  SurfacePtr surface(cairo_image_surface_create_for_data(
      reinterpret_cast<unsigned char*>(words.data()), CAIRO_FORMAT_RGB24, width, height,
      width * 4));
  cairo_status_t status = cairo_surface_status(surface.get());
  if (status != CAIRO_STATUS_SUCCESS) {
    throw PlatformError::Host("cairo", cairo_status_to_string(status));
  }
  return surface;
}

}  // namespace

std::shared_ptr<forms::Bitmap> DecodePng(std::span<const std::uint8_t> bytes) {
  ByteSource source{bytes, 0};
  SurfacePtr surface(cairo_image_surface_create_from_png_stream(ReadBytes, &source));
  cairo_status_t status = cairo_surface_status(surface.get());
  if (status == CAIRO_STATUS_NO_MEMORY) throw PlatformError::Host("cairo", "out of memory");
  if (status != CAIRO_STATUS_SUCCESS) {
    throw PlatformError::InvalidCall(std::string("invalid PNG picture: ") +
                                     cairo_status_to_string(status));
  }
  const int w = cairo_image_surface_get_width(surface.get());
  const int h = cairo_image_surface_get_height(surface.get());
  const int stride = cairo_image_surface_get_stride(surface.get());
  unsigned char* data = cairo_image_surface_get_data(surface.get());
  if (cairo_image_surface_get_format(surface.get()) == CAIRO_FORMAT_ARGB32) {
    for (int y = 0; y < h; ++y) {
      for (int x = 0; x < w; ++x) {
        unsigned char* at = data + static_cast<std::ptrdiff_t>(y) * stride + 4 * x;
        std::uint32_t word = 0;
        std::memcpy(&word, at, 4);
        // Premultiplied colour over white: c + (255 - alpha) a channel.
        const std::uint32_t rest = 255 - (word >> 24);
        word = (((word >> 16 & 0xFF) + rest) << 16) | (((word >> 8 & 0xFF) + rest) << 8) |
               ((word & 0xFF) + rest);
        std::memcpy(at, &word, 4);
      }
    }
  }
  return BitmapOfWords(w, h, data, stride);
}

std::vector<std::uint8_t> EncodePng(const forms::Bitmap& bitmap) {
  if (bitmap.PixelWidth() == 0 || bitmap.PixelHeight() == 0) {
    throw PlatformError::InvalidCall("an empty picture has no PNG form");
  }
  std::vector<std::uint32_t> words = WordsOf(bitmap);
  SurfacePtr surface = SurfaceOf(words, bitmap.PixelWidth(), bitmap.PixelHeight());
  std::vector<std::uint8_t> out;
  cairo_status_t status = cairo_surface_write_to_png_stream(surface.get(), AppendBytes, &out);
  if (status != CAIRO_STATUS_SUCCESS) {
    throw PlatformError::Host("cairo", cairo_status_to_string(status));
  }
  return out;
}

void WritePngFile(const forms::Bitmap& bitmap, const std::string& path) {
  std::vector<std::uint8_t> png = EncodePng(bitmap);
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(png.data()), static_cast<std::streamsize>(png.size()));
  out.close();
  if (!out) throw PlatformError::Host("cairo", "cannot write " + path);
}

}  // namespace ferlan::raster
