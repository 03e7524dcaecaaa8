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

// A Cairo surface that reads the picture's own pixels.
SurfacePtr SurfaceOf(const PixelPicture& picture) {
  // Cairo only reads a source surface; the cast drops a const it cannot take.
  SurfacePtr surface(cairo_image_surface_create_for_data(
      reinterpret_cast<unsigned char*>(const_cast<std::uint32_t*>(picture.Pixels().data())),
      CAIRO_FORMAT_RGB24, picture.PixelWidth(), picture.PixelHeight(),
      picture.PixelWidth() * 4));
  cairo_status_t status = cairo_surface_status(surface.get());
  if (status != CAIRO_STATUS_SUCCESS) {
    throw PlatformError::Host("cairo", cairo_status_to_string(status));
  }
  return surface;
}

}  // namespace

std::shared_ptr<PixelPicture> DecodePng(std::span<const std::uint8_t> bytes) {
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
  const cairo_format_t format = cairo_image_surface_get_format(surface.get());
  const unsigned char* data = cairo_image_surface_get_data(surface.get());
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(w) * static_cast<std::size_t>(h));
  for (int y = 0; y < h; ++y) {
    for (int x = 0; x < w; ++x) {
      std::uint32_t word = 0;
      std::memcpy(&word, data + static_cast<std::ptrdiff_t>(y) * stride + 4 * x, 4);
      std::uint32_t pixel = word & 0xFFFFFFu;
      if (format == CAIRO_FORMAT_ARGB32) {
        // Premultiplied colour over white: c + (255 - alpha) a channel.
        const std::uint32_t rest = 255 - (word >> 24);
        pixel = (((pixel >> 16 & 0xFF) + rest) << 16) | (((pixel >> 8 & 0xFF) + rest) << 8) |
                ((pixel & 0xFF) + rest);
      }
      pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(w) +
             static_cast<std::size_t>(x)] = pixel;
    }
  }
  return std::make_shared<PixelPicture>(w, h, std::move(pixels));
}

std::vector<std::uint8_t> EncodePng(const PixelPicture& picture) {
  if (picture.PixelWidth() == 0 || picture.PixelHeight() == 0) {
    throw PlatformError::InvalidCall("an empty picture has no PNG form");
  }
  SurfacePtr surface = SurfaceOf(picture);
  std::vector<std::uint8_t> out;
  cairo_status_t status = cairo_surface_write_to_png_stream(surface.get(), AppendBytes, &out);
  if (status != CAIRO_STATUS_SUCCESS) {
    throw PlatformError::Host("cairo", cairo_status_to_string(status));
  }
  return out;
}

void WritePngFile(const PixelPicture& picture, const std::string& path) {
  std::vector<std::uint8_t> png = EncodePng(picture);
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(png.data()), static_cast<std::streamsize>(png.size()));
  out.close();
  if (!out) throw PlatformError::Host("cairo", "cannot write " + path);
}

}  // namespace ferlan::raster
