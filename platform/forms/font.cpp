#include "forms/font.hpp"

#include <cmath>

#include "forms/property_table.hpp"

namespace ferlan::forms {

namespace {
const PropertyTable<Font>& Properties() {
  static const PropertyTable<Font> table{
      {"Size", [](Font& f) -> Variant { return f.Size(); },
       [](Font& f, const Variant& v) { f.SetSize(VariantToSingle(v)); }},
      {"Bold", [](Font& f) -> Variant { return f.Bold(); },
       [](Font& f, const Variant& v) { f.SetBold(VariantToBoolean(v)); }},
  };
  return table;
}
}  // namespace

void Font::SetSize(Single size) {
  if (!(size > 0) || !std::isfinite(size)) throw PlatformError::InvalidCall("font size");
  face_.size = size;
}

Variant Font::GetProperty(std::string_view name) { return Properties().Get(*this, name); }

void Font::SetProperty(std::string_view name, const Variant& value) {
  Properties().Set(*this, name, value);
}

}  // namespace ferlan::forms
