// The font of a picture control: size in points and boldness, the two
// properties the component reads and writes.
#pragma once

#include "ferlan/host.hpp"
#include "forms/canvas.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::forms {

class Font final : public ferlan::Font {
 public:
  Font() = default;
  explicit Font(FontSpec face) : face_(face) {}

  Boolean Bold() const override { return face_.bold; }
  void SetBold(Boolean bold) override { face_.bold = bold; }
  Single Size() const override { return face_.size; }
  // Errors: 5 for a size that is not above 0 (no font has it).
  void SetSize(Single size) override;

  const FontSpec& Face() const { return face_; }

  // Late-bound "Size" and "Bold".
  Variant GetProperty(std::string_view name) override;
  void SetProperty(std::string_view name, const Variant& value) override;

 private:
  FontSpec face_;
};

}  // namespace ferlan::forms

FERLAN_PUBLIC_END
