// Variant: a value that carries its own type. It appears only at the
// boundaries that need it: the method table, `Pile`, and late-bound members.
#pragma once

#include <memory>
#include <variant>

#include "ferlan/runtime.hpp"

namespace ferlan {

class Object;
// A reference to a host object; an empty pointer is Nothing.
using ObjectRef = std::shared_ptr<Object>;

struct Empty {
  friend bool operator==(Empty, Empty) = default;
};

using Variant =
    std::variant<Empty, Integer, Long, Single, Double, Boolean, String, ObjectRef>;

// Conversions as the platform coerces a Variant into a typed variable.
// Numbers convert with the rounding and overflow rules of runtime.hpp;
// anything that cannot convert is a type mismatch (13).
Double VariantToDouble(const Variant& v);
Integer VariantToInteger(const Variant& v);
Long VariantToLong(const Variant& v);
Single VariantToSingle(const Variant& v);
Boolean VariantToBoolean(const Variant& v);
String VariantToString(const Variant& v);
ObjectRef VariantToObject(const Variant& v);

// The object inside a Variant as the interface T: Nothing gives nullptr, an
// object of another kind is a type mismatch.
template <class T>
std::shared_ptr<T> VariantAs(const Variant& v) {
  ObjectRef o = VariantToObject(v);
  if (!o) return nullptr;
  auto typed = std::dynamic_pointer_cast<T>(o);
  if (!typed) throw PlatformError::TypeMismatch("object of another kind");
  return typed;
}

}  // namespace ferlan
