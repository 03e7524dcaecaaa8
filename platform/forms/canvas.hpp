// The seam between the forms runtime and a drawing back-end. A picture
// control keeps its properties (size, font, position, colours) itself and
// asks its Canvas to measure and to paint. The headless back-end measures
// with fixed metrics and keeps a display list; the raster back-end draws with
// Cairo and FreeType. Everything is in twips, 15 to a pixel.
#pragma once

#include <functional>
#include <memory>

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::forms {

struct FontSpec {
  Single size = 10;  // points
  Boolean bold = false;
  friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

class Canvas {
 public:
  virtual ~Canvas() = default;
  virtual Single TextWidth(StringView text, const FontSpec& font) = 0;
  virtual Single TextHeight(StringView text, const FontSpec& font) = 0;
  // The inner size changed; what was drawn stays at the top left.
  virtual void Resize(Single width, Single height) = 0;
  virtual void Clear(Long colour) = 0;
  virtual void FillBox(Single x1, Single y1, Single x2, Single y2, Long colour) = 0;
  virtual void Box(Single x1, Single y1, Single x2, Single y2, Long colour) = 0;
  virtual void Line(Single x1, Single y1, Single x2, Single y2, Long colour) = 0;
  // Text with its top left corner at (x, y).
  virtual void Text(Single x, Single y, StringView text, const FontSpec& font, Long colour) = 0;
  // What the canvas shows now, as a picture of its present size.
  virtual PictureRef Snapshot() = 0;
  virtual void Paint(const Picture& picture, Single x, Single y) = 0;
};

// Makes the canvas of a new picture control.
using CanvasFactory = std::function<std::unique_ptr<Canvas>()>;

}  // namespace ferlan::forms

FERLAN_PUBLIC_END
