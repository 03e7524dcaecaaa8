// Coercion of a Variant into a typed variable, as the platform does it.
#include "ferlan/variant.hpp"

#include <type_traits>

namespace ferlan {

Double VariantToDouble(const Variant& v) {
  return std::visit(
      [](const auto& x) -> Double {
        using T = std::decay_t<decltype(x)>;
        if constexpr (std::is_same_v<T, Empty>) {
          return 0;
        } else if constexpr (std::is_same_v<T, Boolean>) {
          return x ? -1 : 0;  // True is -1 where a Boolean becomes a number
        } else if constexpr (std::is_arithmetic_v<T>) {
          return static_cast<Double>(x);
        } else {
          throw PlatformError::TypeMismatch("a number was expected");
        }
      },
      v);
}

Integer VariantToInteger(const Variant& v) { return CInt(VariantToDouble(v)); }
Long VariantToLong(const Variant& v) { return CLng(VariantToDouble(v)); }
Single VariantToSingle(const Variant& v) { return CSng(VariantToDouble(v)); }

Boolean VariantToBoolean(const Variant& v) {
  if (const auto* b = std::get_if<Boolean>(&v)) return *b;
  return VariantToDouble(v) != 0;
}

String VariantToString(const Variant& v) {
  if (const auto* s = std::get_if<String>(&v)) return *s;
  if (std::holds_alternative<Empty>(v)) return {};
  if (const auto* b = std::get_if<Boolean>(&v)) return *b ? u"True" : u"False";
  if (std::holds_alternative<ObjectRef>(v)) throw PlatformError::TypeMismatch("a text was expected");
  return NumberText(VariantToDouble(v));
}

ObjectRef VariantToObject(const Variant& v) {
  if (const auto* o = std::get_if<ObjectRef>(&v)) return *o;
  throw PlatformError::TypeMismatch("an object was expected");
}

}  // namespace ferlan
