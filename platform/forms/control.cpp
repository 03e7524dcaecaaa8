#include "forms/control.hpp"

namespace ferlan::forms {

const PropertyTable<ferlan::Control>& ControlProperties() {
  using C = ferlan::Control;
  static const PropertyTable<C> table{
      {"Left", [](C& c) -> Variant { return c.Left(); },
       [](C& c, const Variant& v) { c.SetLeft(VariantToSingle(v)); }},
      {"Top", [](C& c) -> Variant { return c.Top(); },
       [](C& c, const Variant& v) { c.SetTop(VariantToSingle(v)); }},
      {"Width", [](C& c) -> Variant { return c.Width(); },
       [](C& c, const Variant& v) { c.SetWidth(VariantToSingle(v)); }},
      {"Height", [](C& c) -> Variant { return c.Height(); },
       [](C& c, const Variant& v) { c.SetHeight(VariantToSingle(v)); }},
      {"Visible", [](C& c) -> Variant { return c.Visible(); },
       [](C& c, const Variant& v) { c.SetVisible(VariantToBoolean(v)); }},
  };
  return table;
}

Variant Control::GetProperty(std::string_view name) {
  return ControlProperties().Get(*this, name);
}

void Control::SetProperty(std::string_view name, const Variant& value) {
  ControlProperties().Set(*this, name, value);
}

}  // namespace ferlan::forms
