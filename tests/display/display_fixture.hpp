// The display suites' fixture: the fixed surface 11820 x 8490 inside (27 lines
// of 312, columns of 105), and the Dessin calls of a clearing or of an Aff.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "ferlan/kysaisie.hpp"
#include "forms/picture_box.hpp"
#include "headless/fixed_canvas.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {

// Measures as a test says, else with fixed metrics: the half-way figures
// (194.5, 1000.4) the fixed metrics cannot give. Its drawing is not looked at.
// UseMeasuredSurface puts one, of the same size, in Env.ZoneAff.
class MeasuredCanvas final : public forms::Canvas {
 public:
  std::optional<Single> height;     // TextHeight of every text, when set
  std::map<String, Single> widths;  // TextWidth of these texts
  Single TextWidth(StringView text, const forms::FontSpec& font) override {
    auto it = widths.find(String(text));
    return it != widths.end() ? it->second : fixed_.TextWidth(text, font);
  }
  Single TextHeight(StringView text, const forms::FontSpec& font) override {
    return height.value_or(fixed_.TextHeight(text, font));
  }
  void Resize(Single, Single) override {}
  void Clear(Long) override {}
  void FillBox(Single, Single, Single, Single, Long) override {}
  void Box(Single, Single, Single, Single, Long) override {}
  void Line(Single, Single, Single, Single, Long) override {}
  void Text(Single, Single, StringView, const forms::FontSpec&, Long) override {}
  PictureRef Snapshot() override { return fixed_.Snapshot(); }
  void Paint(const Picture&, Single, Single) override {}

 private:
  headless::FixedCanvas fixed_;
};

class DisplayTest : public SessionTest {
 protected:
  void SetUp() override { SetInnerSize(11820, 8490); }
  void SetInnerSize(Single width, Single height) {
    Zone().SetWidth(width + Zone().Border());
    Zone().SetHeight(height + Zone().Border());
  }
  MeasuredCanvas& UseMeasuredSurface() {
    auto zone = std::make_shared<forms::PictureBox>(std::make_unique<MeasuredCanvas>());
    zone->SetWidth(11820);
    zone->SetHeight(8490);
    Env().surface = zone;
    return dynamic_cast<MeasuredCanvas&>(zone->GetCanvas());
  }
  void ExpectAt(Long line, Long column) {
    Long l = 0, c = 0;
    ky.PosAff(&l, &c);
    EXPECT_EQ(std::pair(l, c), std::pair(line, column));
  }
  KySaisie ky;
};

inline std::string Num(Double v) { return ToUtf8(NumberText(v)); }
// The log of a line cleared from x to the right edge, one text height high.
inline std::string Cleared(Double y, Double x = 105) {
  return "EffaceRect " + Num(x) + " " + Num(y) + " 11820 " + Num(y + 195) + " -1\n";
}
// The log of Aff writing `text` from x to x2 at y, at size 10 with MargeY 1.
inline std::string Written(Double x, Double y, Double x2, const std::string& text, Long back = -1,
                           Long colour = 0) {
  const std::string box = Num(x) + " " + Num(y) + " " + Num(x2) + " ";
  return "EffaceRect " + box + Num(y + 194) + " -1\nPave " + box + Num(y + 193) + " " + Num(back) +
         "\nTexte " + Num(x) + " " + Num(y) + " \"" + text + "\" " + Num(colour) + "\n";
}

}  // namespace ferlan::testing
