#include "headless/key_interception.hpp"

#include "forms/property_table.hpp"

namespace ferlan::headless {

namespace {
const forms::PropertyTable<KeyInterception>& Properties() {
  using K = KeyInterception;
  static const forms::PropertyTable<K> table{
      {"Interception", [](K& k) -> Variant { return k.Interception(); },
       [](K& k, const Variant& v) { k.SetInterception(VariantToBoolean(v)); }},
  };
  return table;
}
}  // namespace

Variant KeyInterception::GetProperty(std::string_view name) {
  return Properties().Get(*this, name);
}

void KeyInterception::SetProperty(std::string_view name, const Variant& value) {
  Properties().Set(*this, name, value);
}

}  // namespace ferlan::headless
