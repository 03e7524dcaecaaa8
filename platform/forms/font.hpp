// The font of a picture control: size in points and boldness, the two
// properties the component reads and writes.
#pragma once

#include "ferlan/host.hpp"
#include "forms/canvas.hpp"

namespace ferlan::forms {

class Font final : public ferlan::Font {
 public:
  Font() = default;
  explicit Font(FontSpec spec) : spec_(spec) {}

  Boolean Bold() const override { return spec_.bold; }
  void SetBold(Boolean bold) override { spec_.bold = bold; }
  Single Size() const override { return spec_.size; }
  // Errors: 5 for a size that is not above 0 (no font has it).
  void SetSize(Single size) override;

  const FontSpec& Spec() const { return spec_; }

  // Late-bound "Size" and "Bold".
  Variant GetProperty(std::string_view name) override;
  void SetProperty(std::string_view name, const Variant& value) override;

 private:
  FontSpec spec_;
};

}  // namespace ferlan::forms
