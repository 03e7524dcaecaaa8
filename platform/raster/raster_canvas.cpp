// The raster canvas. Cairo fills, strokes and copies pictures on an RGB24
// image; text is composited straight from the glyph cache's coverage into the
// image's pixels, which is several times faster than a Cairo mask per glyph
// and keeps measuring and drawing on the very same advances.
#include "raster/raster_canvas.hpp"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "raster/glyph_cache.hpp"
#include "raster/pixel_words.hpp"

namespace ferlan::raster {

namespace {

constexpr std::uint32_t kWhite = 0xFFFFFFu;

void Check(cairo_status_t status, std::string_view doing) {
  if (status != CAIRO_STATUS_SUCCESS) {
    throw PlatformError::Host("cairo", std::string(doing) + ": " + cairo_status_to_string(status));
  }
}

void SetColour(cairo_t* cr, std::uint32_t pixel) {
  cairo_set_source_rgb(cr, ((pixel >> 16) & 0xFF) / 255.0, ((pixel >> 8) & 0xFF) / 255.0,
                       (pixel & 0xFF) / 255.0);
}

std::uint32_t Blend(std::uint32_t dst, std::uint32_t src, unsigned alpha) {
  if (alpha == 255) return src;
  std::uint32_t out = 0;
  for (int shift = 0; shift <= 16; shift += 8) {
    unsigned d = (dst >> shift) & 0xFF;
    unsigned s = (src >> shift) & 0xFF;
    out |= ((s * alpha + d * (255 - alpha) + 127) / 255) << shift;
  }
  return out;
}

// Cuts the segment between two whole pixels (x1, y1, x2, y2) to the box;
// false when nothing of it lies inside or an end is not a number.
bool ClipToBox(double (&ends)[4], double left, double top, double right, double bottom) {
  for (double v : ends) {
    if (std::isnan(v)) return false;
  }
  const double dx = ends[2] - ends[0], dy = ends[3] - ends[1];
  double from = 0, to = 1;
  const double p[4] = {-dx, dx, -dy, dy};
  const double q[4] = {ends[0] - left, right - ends[0], ends[1] - top, bottom - ends[1]};
  for (int i = 0; i < 4; ++i) {
    if (p[i] == 0) {
      if (q[i] < 0) return false;
      continue;
    }
    const double t = q[i] / p[i];
    if (!std::isfinite(t)) return false;  // an end at infinity
    if (p[i] < 0) {
      from = std::max(from, t);
    } else {
      to = std::min(to, t);
    }
  }
  if (from > to) return false;
  const double x1 = ends[0], y1 = ends[1];
  // Whole pixels already: the ends inside stay as they are, a cut one goes
  // to the nearest pixel on the line.
  ends[0] = std::round(x1 + from * dx);
  ends[1] = std::round(y1 + from * dy);
  ends[2] = std::round(x1 + to * dx);
  ends[3] = std::round(y1 + to * dy);
  return true;
}

}  // namespace

PixelRect PixelRect::Union(const PixelRect& o) const {
  if (o.Empty()) return *this;
  if (Empty()) return o;
  const int left = std::min(x, o.x), top = std::min(y, o.y);
  return {left, top, std::max(x + w, o.x + o.w) - left, std::max(y + h, o.y + o.h) - top};
}

PixelRect PixelRect::Intersection(const PixelRect& o) const {
  const int left = std::max(x, o.x), top = std::max(y, o.y);
  const int right = std::min(x + w, o.x + o.w), bottom = std::min(y + h, o.y + o.h);
  if (right <= left || bottom <= top) return {};
  return {left, top, right - left, bottom - top};
}

void AddRect(std::vector<PixelRect>& rects, PixelRect r, std::size_t most) {
  if (r.Empty()) return;
  const auto area = [](const PixelRect& a) {
    return static_cast<std::int64_t>(a.w) * static_cast<std::int64_t>(a.h);
  };
  // Joined with every rectangle it overlaps, until it overlaps none.
  for (std::size_t i = 0; i < rects.size();) {
    if (!rects[i].Intersection(r).Empty()) {
      r = r.Union(rects[i]);
      rects.erase(rects.begin() + static_cast<std::ptrdiff_t>(i));
      i = 0;
    } else {
      ++i;
    }
  }
  if (!rects.empty() && rects.size() >= std::max<std::size_t>(most, 1)) {
    std::size_t best = 0;
    std::int64_t least = -1;
    for (std::size_t i = 0; i < rects.size(); ++i) {
      const std::int64_t growth = area(rects[i].Union(r)) - area(rects[i]) - area(r);
      if (least < 0 || growth < least) {
        least = growth;
        best = i;
      }
    }
    r = r.Union(rects[best]);
    rects.erase(rects.begin() + static_cast<std::ptrdiff_t>(best));
    AddRect(rects, r, most);
    return;
  }
  rects.push_back(r);
}

struct RasterCanvas::Surface {
  cairo_surface_t* image = nullptr;
  cairo_t* cr = nullptr;
  int width = 0;
  int height = 0;
  // What a grown canvas shows where nothing was drawn: the last clearing.
  std::uint32_t background = kWhite;
  // What changed since the front-end last asked.
  std::vector<PixelRect> damage;

  Surface(int w, int h, std::uint32_t back) : width(w), height(h), background(back) {
    image = cairo_image_surface_create(CAIRO_FORMAT_RGB24, w, h);
    cr = cairo_create(image);
    if (cairo_status(cr) != CAIRO_STATUS_SUCCESS) {
      const cairo_status_t status = cairo_status(cr);
      cairo_destroy(cr);
      cairo_surface_destroy(image);
      Check(status, "creating a surface");
    }
    // Whole pixels, no blending at the edges: boxes meet exactly.
    cairo_set_antialias(cr, CAIRO_ANTIALIAS_NONE);
    cairo_set_line_width(cr, 1.0);
    FillPixels(0, 0, w, h, back);
  }
  ~Surface() {
    cairo_destroy(cr);
    cairo_surface_destroy(image);
  }
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  void Damage(int x, int y, int w, int h) {
    AddRect(damage, PixelRect{x, y, w, h}.Intersection({0, 0, width, height}));
  }

  void FillPixels(int x, int y, int w, int h, std::uint32_t pixel) {
    if (w <= 0 || h <= 0) return;
    Damage(x, y, w, h);
    SetColour(cr, pixel);
    cairo_rectangle(cr, x, y, w, h);
    cairo_fill(cr);
  }

  // The box between two corners in twips, both included, as pixels.
  void FillCorners(double x1, double y1, double x2, double y2, std::uint32_t pixel) {
    int px1 = PixelOfTwips(std::min(x1, x2));
    int px2 = PixelOfTwips(std::max(x1, x2));
    int py1 = PixelOfTwips(std::min(y1, y2));
    int py2 = PixelOfTwips(std::max(y1, y2));
    FillPixels(px1, py1, px2 - px1 + 1, py2 - py1 + 1, pixel);
  }

  std::uint32_t* Row(int y) {
    return reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(image) +
                                            static_cast<std::ptrdiff_t>(y) *
                                                cairo_image_surface_get_stride(image));
  }
  const std::uint32_t* Row(int y) const {
    return reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(image) +
                                                  static_cast<std::ptrdiff_t>(y) *
                                                      cairo_image_surface_get_stride(image));
  }
};

RasterCanvas::RasterCanvas(Single width, Single height)
    : surface_(std::make_unique<Surface>(PixelsOfSize(width), PixelsOfSize(height), kWhite)) {}

RasterCanvas::~RasterCanvas() = default;

Single RasterCanvas::TextWidth(StringView text, const forms::FontSpec& font) {
  return static_cast<Single>(
      GlyphCache::ForThisThread().Instance(font.size, font.bold).TextWidthTwips(text));
}

Single RasterCanvas::TextHeight(StringView text, const forms::FontSpec& font) {
  // One line height a line: a text with line breaks is that many lines high.
  auto lines = 1 + std::count(text.begin(), text.end(), u'\n');
  double line = GlyphCache::ForThisThread().Instance(font.size, font.bold).LineHeightTwips();
  return static_cast<Single>(line * static_cast<double>(lines));
}

void RasterCanvas::Resize(Single width, Single height) {
  ++changes_;
  int w = PixelsOfSize(width);
  int h = PixelsOfSize(height);
  if (w == surface_->width && h == surface_->height) return;
  auto grown = std::make_unique<Surface>(w, h, surface_->background);
  cairo_surface_flush(surface_->image);
  cairo_set_source_surface(grown->cr, surface_->image, 0, 0);
  cairo_rectangle(grown->cr, 0, 0, std::min(w, surface_->width), std::min(h, surface_->height));
  cairo_fill(grown->cr);
  cairo_set_source_rgb(grown->cr, 0, 0, 0);  // let go of the old image
  Check(cairo_status(grown->cr), "resizing a surface");
  grown->damage = {PixelRect{0, 0, w, h}};
  surface_ = std::move(grown);
}

void RasterCanvas::Clear(Long colour) {
  ++changes_;
  surface_->background = WordOfColour(colour);
  surface_->FillPixels(0, 0, surface_->width, surface_->height, surface_->background);
}

void RasterCanvas::FillBox(Single x1, Single y1, Single x2, Single y2, Long colour) {
  // Corners that share a side fill nothing: the clear of an empty text is
  // such a box, and must not leave a column of pixels.
  if (x1 == x2 || y1 == y2) return;
  ++changes_;
  surface_->FillCorners(x1, y1, x2, y2, WordOfColour(colour));
}

void RasterCanvas::Box(Single x1, Single y1, Single x2, Single y2, Long colour) {
  ++changes_;
  std::uint32_t pixel = WordOfColour(colour);
  Surface& s = *surface_;
  s.FillCorners(x1, y1, x2, y1, pixel);
  s.FillCorners(x1, y2, x2, y2, pixel);
  s.FillCorners(x1, y1, x1, y2, pixel);
  s.FillCorners(x2, y1, x2, y2, pixel);
}

void RasterCanvas::Line(Single x1, Single y1, Single x2, Single y2, Long colour) {
  ++changes_;
  std::uint32_t pixel = WordOfColour(colour);
  Surface& s = *surface_;
  double ends[4] = {PixelPosition(x1), PixelPosition(y1), PixelPosition(x2), PixelPosition(y2)};
  if (ends[0] == ends[2] || ends[1] == ends[3]) {
    s.FillCorners(x1, y1, x2, y2, pixel);  // the rules of tables and columns: exact
    return;
  }
  // A slanted line reaching far off the surface keeps its slope: only its
  // part near the surface is drawn.
  if (!ClipToBox(ends, -2.0, -2.0, s.width + 1.0, s.height + 1.0)) return;
  const int px1 = ClampedPixel(ends[0]), py1 = ClampedPixel(ends[1]);
  const int px2 = ClampedPixel(ends[2]), py2 = ClampedPixel(ends[3]);
  SetColour(s.cr, pixel);
  s.Damage(std::min(px1, px2), std::min(py1, py2), std::abs(px2 - px1) + 1,
           std::abs(py2 - py1) + 1);
  cairo_move_to(s.cr, px1 + 0.5, py1 + 0.5);
  cairo_line_to(s.cr, px2 + 0.5, py2 + 0.5);
  cairo_stroke(s.cr);
  // Both ends belong to the line; a butt-capped stroke half covers them.
  s.FillPixels(px1, py1, 1, 1, pixel);
  s.FillPixels(px2, py2, 1, 1, pixel);
}

void RasterCanvas::Text(Single x, Single y, StringView text, const forms::FontSpec& font,
                        Long colour) {
  ++changes_;
  Surface& s = *surface_;
  FontInstance& face = GlyphCache::ForThisThread().Instance(font.size, font.bold);
  const std::uint32_t pixel = WordOfColour(colour);
  const int baseline = NearestPixelOfTwips(y + face.AscentTwips());
  double pen = static_cast<double>(x);  // twips: the same sums as TextWidth
  int min_x = s.width, max_x = -1, min_y = s.height, max_y = -1;
  cairo_surface_flush(s.image);
  ForEachCodePoint(text, [&](char32_t c) {
    const GlyphImage& glyph = face.Glyph(c);
    const int origin = NearestPixelOfTwips(pen);
    pen += face.AdvanceTwips(c);
    const int gx = origin + glyph.left;
    const int gy = baseline - glyph.top;
    const int col0 = std::max(0, -gx), col1 = std::min(glyph.width, s.width - gx);
    const int row0 = std::max(0, -gy), row1 = std::min(glyph.height, s.height - gy);
    if (col0 >= col1 || row0 >= row1) return;
    for (int row = row0; row < row1; ++row) {
      std::uint32_t* dst = s.Row(gy + row) + gx;
      const std::uint8_t* cover =
          glyph.coverage.data() + static_cast<std::ptrdiff_t>(row) * glyph.width;
      for (int col = col0; col < col1; ++col) {
        if (cover[col] != 0) dst[col] = Blend(dst[col], pixel, cover[col]);
      }
    }
    min_x = std::min(min_x, gx + col0);
    max_x = std::max(max_x, gx + col1 - 1);
    min_y = std::min(min_y, gy + row0);
    max_y = std::max(max_y, gy + row1 - 1);
  });
  if (max_x >= min_x) {
    cairo_surface_mark_dirty_rectangle(s.image, min_x, min_y, max_x - min_x + 1, max_y - min_y + 1);
    s.Damage(min_x, min_y, max_x - min_x + 1, max_y - min_y + 1);
  }
}

PictureRef RasterCanvas::Snapshot() {
  Surface& s = *surface_;
  cairo_surface_flush(s.image);
  return BitmapOfWords(s.width, s.height, cairo_image_surface_get_data(s.image),
                       cairo_image_surface_get_stride(s.image));
}

void RasterCanvas::Paint(const Picture& picture, Single x, Single y) {
  ++changes_;
  const auto* bitmap = dynamic_cast<const forms::Bitmap*>(&picture);
  if (bitmap == nullptr) throw PlatformError::InvalidCall("not a picture of pixels");
  const int w = bitmap->PixelWidth(), h = bitmap->PixelHeight();
  if (w == 0 || h == 0) return;
  Surface& s = *surface_;
  std::vector<std::uint32_t> words = WordsOf(*bitmap);
  cairo_surface_t* source = cairo_image_surface_create_for_data(
      reinterpret_cast<unsigned char*>(words.data()), CAIRO_FORMAT_RGB24, w, h, w * 4);
  Check(cairo_surface_status(source), "reading a picture");
  const int px = PixelOfTwips(x), py = PixelOfTwips(y);
  s.Damage(px, py, w, h);
  cairo_set_source_surface(s.cr, source, px, py);
  cairo_rectangle(s.cr, px, py, w, h);
  cairo_fill(s.cr);
  // The context holds its source; let go of it before the words go.
  cairo_set_source_rgb(s.cr, 0, 0, 0);
  cairo_surface_destroy(source);
  Check(cairo_status(s.cr), "painting a picture");
}

void RasterCanvas::PaintOnto(cairo_t* cr, int x, int y, int w, int h) const {
  Surface& s = *surface_;
  if (s.width == 0 || s.height == 0 || w <= 0 || h <= 0) return;
  cairo_surface_flush(s.image);
  cairo_save(cr);
  cairo_rectangle(cr, x, y, w, h);
  cairo_clip(cr);
  cairo_translate(cr, x, y);
  cairo_scale(cr, static_cast<double>(w) / s.width, static_cast<double>(h) / s.height);
  cairo_set_source_surface(cr, s.image, 0, 0);
  cairo_pattern_set_filter(cairo_get_source(cr), CAIRO_FILTER_NEAREST);
  cairo_paint(cr);
  cairo_restore(cr);
}

std::vector<PixelRect> RasterCanvas::TakeDamage() { return std::exchange(surface_->damage, {}); }

int RasterCanvas::PixelWidth() const { return surface_->width; }
int RasterCanvas::PixelHeight() const { return surface_->height; }

Long RasterCanvas::ColourAt(int x, int y) const {
  if (x < 0 || y < 0 || x >= surface_->width || y >= surface_->height) {
    throw PlatformError::SubscriptOutOfRange();
  }
  cairo_surface_flush(surface_->image);
  return ColourOfWord(surface_->Row(y)[x] & 0xFFFFFFu);
}

forms::CanvasFactory RasterCanvasFactory() {
  return [] { return std::make_unique<RasterCanvas>(); };
}

}  // namespace ferlan::raster
