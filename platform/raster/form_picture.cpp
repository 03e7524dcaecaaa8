// Composes the form from its controls with Cairo, back to front, as the
// window front-end would show it.
#include "raster/form_picture.hpp"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "forms/form.hpp"
#include "forms/picture_box.hpp"
#include "raster/picture_files.hpp"
#include "raster/pixel_words.hpp"
#include "raster/raster_canvas.hpp"

namespace ferlan::raster {

namespace {

// The platform's default colours of a form and its chrome, 0x00BBGGRR.
constexpr Long kButtonFace = 0x00F0F0F0;
constexpr Long kToolbarFace = 0x00E8E8E8;
constexpr Long kShadow = 0x00A0A0A0;
constexpr Long kDarkShadow = 0x00696969;

void CheckCairo(cairo_status_t status) {
  if (status != CAIRO_STATUS_SUCCESS) {
    throw PlatformError::Host("cairo", cairo_status_to_string(status));
  }
}

void SetColour(cairo_t* cr, Long colour) {
  const std::uint32_t w = WordOfColour(colour);
  cairo_set_source_rgb(cr, ((w >> 16) & 0xFF) / 255.0, ((w >> 8) & 0xFF) / 255.0,
                       (w & 0xFF) / 255.0);
}

void Fill(cairo_t* cr, int x, int y, int w, int h, Long colour) {
  if (w <= 0 || h <= 0) return;
  SetColour(cr, colour);
  cairo_rectangle(cr, x, y, w, h);
  cairo_fill(cr);
}

// A member of the form, or null when the form has none of that name.
template <typename T>
std::shared_ptr<T> OptionalMember(Form& form, std::string_view name) {
  try {
    return std::dynamic_pointer_cast<T>(form.Member(name));
  } catch (const PlatformError& error) {
    if (error.Number() == 438) return nullptr;
    throw;
  }
}

Long FormBackColour(Form& form) {
  try {
    return VariantToLong(form.GetProperty("BackColor"));
  } catch (const PlatformError& error) {
    if (error.Number() == 438) return kButtonFace;
    throw;
  }
}

// Draws `bitmap` with its top left at (x, y), scaled to w x h pixels with
// whole pixels repeated, never blurred: the caret must stay crisp.
void PaintBitmap(cairo_t* cr, const forms::Bitmap& bitmap, int x, int y, int w, int h) {
  const int bw = bitmap.PixelWidth(), bh = bitmap.PixelHeight();
  if (bw == 0 || bh == 0 || w <= 0 || h <= 0) return;
  std::vector<std::uint32_t> words = WordsOf(bitmap);
  cairo_surface_t* source = cairo_image_surface_create_for_data(
      reinterpret_cast<unsigned char*>(words.data()), CAIRO_FORMAT_RGB24, bw, bh, bw * 4);
  cairo_save(cr);
  cairo_rectangle(cr, x, y, w, h);
  cairo_clip(cr);
  cairo_translate(cr, x, y);
  cairo_scale(cr, static_cast<double>(w) / bw, static_cast<double>(h) / bh);
  cairo_set_source_surface(cr, source, 0, 0);
  cairo_pattern_set_filter(cairo_get_source(cr), CAIRO_FILTER_NEAREST);
  cairo_paint(cr);
  cairo_restore(cr);  // drops the source before its words go
  cairo_surface_destroy(source);
}

const forms::Bitmap* AsBitmap(const PictureRef& picture) {
  return dynamic_cast<const forms::Bitmap*>(picture.get());
}

int Border(PictureBox& box) { return PixelOfTwips((box.Width() - box.ScaleWidth()) / 2); }

const RasterCanvas* RasterOf(PictureBox& box) {
  auto* own = dynamic_cast<forms::PictureBox*>(&box);
  return own ? dynamic_cast<const RasterCanvas*>(&own->GetCanvas()) : nullptr;
}

PixelRect InnerRectFrom(PictureBox& box, int origin_x, int origin_y) {
  const int border = Border(box);
  return {origin_x + PixelOfTwips(box.Left()) + border, origin_y + PixelOfTwips(box.Top()) + border,
          PixelsOfSize(box.ScaleWidth()), PixelsOfSize(box.ScaleHeight())};
}

// A picture control at its place: its border, its canvas, its picture.
PixelRect DrawPictureBox(cairo_t* cr, PictureBox& box, int origin_x = 0, int origin_y = 0) {
  const int border = Border(box);
  const PixelRect inner = InnerRectFrom(box, origin_x, origin_y);
  if (border > 0) {
    // A sunken single border: a grey line outside a dark one.
    const int w = inner.w + 2 * border, h = inner.h + 2 * border;
    Fill(cr, inner.x - border, inner.y - border, w, h, kShadow);
    Fill(cr, inner.x - border + 1, inner.y - border + 1, w - 2, h - 2, kDarkShadow);
  }
  Fill(cr, inner.x, inner.y, inner.w, inner.h, box.BackColor());
  if (const RasterCanvas* raster = RasterOf(box)) {
    // Straight from the canvas's pixels: the same picture as its snapshot.
    raster->PaintOnto(cr, inner.x, inner.y, std::min(inner.w, raster->PixelWidth()),
                      std::min(inner.h, raster->PixelHeight()));
  } else if (const forms::Bitmap* drawn = AsBitmap(box.Image())) {
    PaintBitmap(cr, *drawn, inner.x, inner.y, std::min(inner.w, drawn->PixelWidth()),
                std::min(inner.h, drawn->PixelHeight()));
  }
  if (const forms::Bitmap* picture = AsBitmap(box.Picture())) {
    PaintBitmap(cr, *picture, inner.x, inner.y, std::min(inner.w, picture->PixelWidth()),
                std::min(inner.h, picture->PixelHeight()));
  }
  return inner;
}

// The caret's place, unclipped.
PixelRect CaretPlace(PictureBox& caret, const PixelRect& surface) {
  const forms::Bitmap* picture = AsBitmap(caret.Picture());
  const int w =
      caret.Width() > 0 ? PixelsOfSize(caret.Width()) : (picture ? picture->PixelWidth() : 0);
  const int h =
      caret.Height() > 0 ? PixelsOfSize(caret.Height()) : (picture ? picture->PixelHeight() : 0);
  return {surface.x + PixelOfTwips(caret.Left()), surface.y + PixelOfTwips(caret.Top()), w, h};
}

void DrawCaret(cairo_t* cr, PictureBox& caret, const PixelRect& surface) {
  const forms::Bitmap* picture = AsBitmap(caret.Picture());
  const PixelRect at = CaretPlace(caret, surface);
  cairo_save(cr);
  cairo_rectangle(cr, surface.x, surface.y, surface.w, surface.h);
  cairo_clip(cr);
  if (picture != nullptr) {
    PaintBitmap(cr, *picture, at.x, at.y, at.w, at.h);
  } else {
    Fill(cr, at.x, at.y, at.w, at.h, caret.BackColor());
  }
  cairo_restore(cr);
}

}  // namespace

PixelRect InnerRect(PictureBox& box) { return InnerRectFrom(box, 0, 0); }

std::vector<PictureBox*> SurfaceChildren(Form& form, PictureBox* surface) {
  std::vector<PictureBox*> children;
  auto* own = dynamic_cast<forms::Form*>(&form);
  if (own == nullptr) return children;
  const auto* zone = OptionalMember<PictureBox>(form, "zoneMessage").get();
  const auto* caret = OptionalMember<PictureBox>(form, "Caret").get();
  const auto* main_surface = OptionalMember<PictureBox>(form, "ZoneAff").get();
  for (const ObjectRef& object : own->Controls()) {
    auto* box = dynamic_cast<PictureBox*>(object.get());
    if (box == nullptr || box == surface || box == zone || box == caret || box == main_surface) {
      continue;
    }
    children.push_back(box);
  }
  return children;
}

PixelRect ChildRect(PictureBox& child, PictureBox& surface) {
  if (!child.Visible() || !surface.Visible()) return {};
  const PixelRect parent = InnerRect(surface);
  const int border = Border(child);
  const PixelRect inner = InnerRectFrom(child, parent.x, parent.y);
  return PixelRect{inner.x - border, inner.y - border, inner.w + 2 * border, inner.h + 2 * border}
      .Intersection(parent);
}

PixelRect CanvasDamageOnForm(PictureBox& box, const PixelRect& damage) {
  if (damage.Empty()) return {};
  const PixelRect inner = InnerRect(box);
  const RasterCanvas* raster = RasterOf(box);
  if (raster == nullptr) return inner;
  const int w = std::min(inner.w, raster->PixelWidth());
  const int h = std::min(inner.h, raster->PixelHeight());
  // A canvas squeezed into a smaller area: any of its changes may show
  // anywhere in it.
  if (w != raster->PixelWidth() || h != raster->PixelHeight()) return {inner.x, inner.y, w, h};
  return PixelRect{inner.x + damage.x, inner.y + damage.y, damage.w, damage.h}.Intersection(
      {inner.x, inner.y, w, h});
}

PixelRect CaretRect(PictureBox& caret, PictureBox& surface) {
  if (!caret.Visible() || !surface.Visible()) return {};
  const PixelRect inner = InnerRect(surface);
  return CaretPlace(caret, inner).Intersection(inner);
}

PixelSize FormPixelSize(Form& form) {
  return {PixelsOfSize(form.ScaleWidth()), PixelsOfSize(form.ScaleHeight())};
}

void ComposeFormOnto(Form& form, PictureBox* surface, unsigned char* data, PixelSize size,
                     int stride, const std::vector<PixelRect>* clip) {
  PictureBoxRef own_surface;
  if (surface == nullptr) {
    own_surface = std::dynamic_pointer_cast<PictureBox>(form.Member("ZoneAff"));
    if (!own_surface) throw PlatformError::TypeMismatch("ZoneAff is not a picture control");
    surface = own_surface.get();
  }
  const int width = size.width;
  const int height = size.height;
  if (width <= 0 || height <= 0) return;
  std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> owned_image(
      cairo_image_surface_create_for_data(data, CAIRO_FORMAT_RGB24, width, height, stride),
      &cairo_surface_destroy);
  std::unique_ptr<cairo_t, decltype(&cairo_destroy)> owned_cr(cairo_create(owned_image.get()),
                                                              &cairo_destroy);
  cairo_surface_t* image = owned_image.get();
  cairo_t* cr = owned_cr.get();
  // A form too large for an image fails here, before anything is drawn on a
  // context in error.
  CheckCairo(cairo_surface_status(image));
  CheckCairo(cairo_status(cr));
  cairo_set_antialias(cr, CAIRO_ANTIALIAS_NONE);
  if (clip != nullptr) {
    // Whole pixels: the drawing inside is the very same as without a clip.
    for (const PixelRect& r : *clip) {
      if (!r.Empty()) cairo_rectangle(cr, r.x, r.y, r.w, r.h);
    }
    cairo_clip(cr);
  }
  Fill(cr, 0, 0, width, height, FormBackColour(form));

  if (auto toolbar = OptionalMember<Control>(form, "BarreOutils"); toolbar && toolbar->Visible()) {
    const int x = PixelOfTwips(toolbar->Left()), y = PixelOfTwips(toolbar->Top());
    const int w = PixelsOfSize(toolbar->Width()), h = PixelsOfSize(toolbar->Height());
    Fill(cr, x, y, w, h, kToolbarFace);
    Fill(cr, x, y + h - 1, w, std::min(h, 1), kShadow);
  }
  PixelRect inner;
  if (surface->Visible()) {
    inner = DrawPictureBox(cr, *surface);
    // The host's own picture controls, children of the surface.
    for (PictureBox* child : SurfaceChildren(form, surface)) {
      if (!child->Visible()) continue;
      cairo_save(cr);
      cairo_rectangle(cr, inner.x, inner.y, inner.w, inner.h);
      cairo_clip(cr);
      DrawPictureBox(cr, *child, inner.x, inner.y);
      cairo_restore(cr);
    }
  }
  if (auto zone = OptionalMember<PictureBox>(form, "zoneMessage"); zone && zone->Visible()) {
    DrawPictureBox(cr, *zone);
  }
  if (auto caret = OptionalMember<PictureBox>(form, "Caret");
      caret && caret->Visible() && surface->Visible()) {
    DrawCaret(cr, *caret, inner);
  }

  cairo_surface_flush(image);
  CheckCairo(cairo_status(cr));
}

std::shared_ptr<forms::Bitmap> ComposeForm(Form& form, PictureBox* surface) {
  const PixelSize size = FormPixelSize(form);
  // Cairo's own limit on an image side; checked before the buffer is made,
  // so an oversized form is an error and never a huge allocation.
  constexpr int kLargestSide = 32767;
  if (size.width > kLargestSide || size.height > kLargestSide) {
    CheckCairo(CAIRO_STATUS_INVALID_SIZE);
  }
  const int stride = cairo_format_stride_for_width(CAIRO_FORMAT_RGB24, std::max(size.width, 0));
  if (stride < 0) CheckCairo(CAIRO_STATUS_INVALID_STRIDE);
  std::vector<unsigned char> data(static_cast<std::size_t>(stride) *
                                  static_cast<std::size_t>(std::max(size.height, 0)));
  ComposeFormOnto(form, surface, data.data(), size, stride);
  return BitmapOfWords(size.width, size.height, data.data(), stride);
}

void WriteFormPng(Form& form, const std::string& path, PictureBox* surface) {
  WritePngFile(*ComposeForm(form, surface), path);
}

}  // namespace ferlan::raster
