// The raster surface: a picture control's canvas drawn into pixels with Cairo,
// text in DejaVu Sans through FreeType. Units are twips, 15 to a pixel.
//
// Implemented:
//  [X] TextWidth / TextHeight from the font's scalable metrics at the size and
//      weight asked (no kerning, as the platform's own measure has none)
//  [X] Clear, FillBox, Box, Line in 0x00BBGGRR, corners in any order, both
//      corners included, crisp (no anti-aliasing) on whole pixels
//  [X] Text with its top left corner at (x, y), anti-aliased grey coverage
//  [X] Resize keeping what was drawn at the top left
//  [X] Snapshot to a forms Bitmap; Paint of any Bitmap (BMP, PNG, snapshot)
// Missing:
//  [ ] Italic, underline, other families: the surface has one font
//  [ ] Line widths other than one pixel, dotted styles
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "forms/canvas.hpp"
#include "raster/pixel_words.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

// Cairo's drawing context, named without its header.
typedef struct _cairo cairo_t;

namespace ferlan::raster {

// A rectangle of pixels; empty when w or h is not positive.
struct PixelRect {
  int x = 0;
  int y = 0;
  int w = 0;
  int h = 0;
  bool Empty() const { return w <= 0 || h <= 0; }
  // The smallest rectangle holding both.
  PixelRect Union(const PixelRect& other) const;
  PixelRect Intersection(const PixelRect& other) const;
  friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

// Adds `r` to a short list of rectangles that together cover all added:
// it joins any it overlaps, and once the list holds `most`, the one it
// grows least. Far-apart changes stay apart, so that little is redrawn.
void AddRect(std::vector<PixelRect>& rects, PixelRect r, std::size_t most = 4);

class RasterCanvas final : public forms::Canvas {
 public:
  // A canvas of that size in twips, cleared to white.
  explicit RasterCanvas(Single width = 0, Single height = 0);
  ~RasterCanvas() override;
  RasterCanvas(const RasterCanvas&) = delete;
  RasterCanvas& operator=(const RasterCanvas&) = delete;

  Single TextWidth(StringView text, const forms::FontSpec& font) override;
  Single TextHeight(StringView text, const forms::FontSpec& font) override;
  void Resize(Single width, Single height) override;
  void Clear(Long colour) override;
  void FillBox(Single x1, Single y1, Single x2, Single y2, Long colour) override;
  void Box(Single x1, Single y1, Single x2, Single y2, Long colour) override;
  void Line(Single x1, Single y1, Single x2, Single y2, Long colour) override;
  void Text(Single x, Single y, StringView text, const forms::FontSpec& font, Long colour) override;
  PictureRef Snapshot() override;
  void Paint(const Picture& picture, Single x, Single y) override;

  int PixelWidth() const;
  int PixelHeight() const;
  // The colour of one pixel, 0x00BBGGRR.
  Long ColourAt(int x, int y) const;
  // Counts the calls that changed what the canvas shows: a front-end that
  // sees it unchanged has nothing new to present.
  std::uint64_t Changes() const { return changes_; }
  // The pixels the calls changed since the last TakeDamage (the whole
  // canvas after a Resize or a Clear), as a few rectangles, and starts
  // afresh: a front-end copies only those to the screen.
  std::vector<PixelRect> TakeDamage();
  // What the canvas shows, painted at (x, y) stretched to w x h pixels with
  // whole pixels repeated, as a snapshot of it would paint: composing the
  // form without copying the canvas.
  void PaintOnto(cairo_t* cr, int x, int y, int w, int h) const;

 private:
  struct Surface;
  std::unique_ptr<Surface> surface_;
  std::uint64_t changes_ = 0;
};

// Canvases for new picture controls, for a forms runtime drawn in pixels.
forms::CanvasFactory RasterCanvasFactory();

}  // namespace ferlan::raster

FERLAN_PUBLIC_END
