// A test canvas that measures as told: the fixed-metric canvas, except for
// the text heights and widths a test sets, so that exact half-way figures
// (195.5, 1000.4) can be had without bending the font size. Drawing goes to
// the fixed canvas unchanged.
#pragma once

#include <map>
#include <memory>
#include <optional>

#include "forms/canvas.hpp"
#include "forms/picture_box.hpp"
#include "headless/fixed_canvas.hpp"

namespace ferlan::testing {

struct Measures {
  std::optional<Single> height;     // TextHeight of every text, when set
  std::map<String, Single> widths;  // TextWidth of these texts
};

class MeasuredCanvas final : public forms::Canvas {
 public:
  explicit MeasuredCanvas(std::shared_ptr<Measures> measures) : measures_(std::move(measures)) {}

  Single TextWidth(StringView text, const forms::FontSpec& font) override {
    auto it = measures_->widths.find(String(text));
    return it != measures_->widths.end() ? it->second : fixed_.TextWidth(text, font);
  }
  Single TextHeight(StringView text, const forms::FontSpec& font) override {
    return measures_->height ? *measures_->height : fixed_.TextHeight(text, font);
  }
  void Resize(Single width, Single height) override { fixed_.Resize(width, height); }
  void Clear(Long colour) override { fixed_.Clear(colour); }
  void FillBox(Single x1, Single y1, Single x2, Single y2, Long colour) override {
    fixed_.FillBox(x1, y1, x2, y2, colour);
  }
  void Box(Single x1, Single y1, Single x2, Single y2, Long colour) override {
    fixed_.Box(x1, y1, x2, y2, colour);
  }
  void Line(Single x1, Single y1, Single x2, Single y2, Long colour) override {
    fixed_.Line(x1, y1, x2, y2, colour);
  }
  void Text(Single x, Single y, StringView text, const forms::FontSpec& font,
            Long colour) override {
    fixed_.Text(x, y, text, font, colour);
  }
  PictureRef Snapshot() override { return fixed_.Snapshot(); }
  void Paint(const Picture& picture, Single x, Single y) override { fixed_.Paint(picture, x, y); }

 private:
  std::shared_ptr<Measures> measures_;
  headless::FixedCanvas fixed_;
};

// A surface of the given inner size on a MeasuredCanvas, without border.
inline std::shared_ptr<forms::PictureBox> MeasuredSurface(std::shared_ptr<Measures> measures,
                                                          Single width, Single height) {
  auto zone = std::make_shared<forms::PictureBox>(std::make_unique<MeasuredCanvas>(measures));
  zone->SetWidth(width);
  zone->SetHeight(height);
  return zone;
}

}  // namespace ferlan::testing
