// Variant: a value that carries its own type. It appears only at the
// boundaries that need it: the method table, `Pile`, and late-bound members.
#pragma once

#include <memory>
#include <type_traits>
#include <variant>

#include "ferlan/runtime.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

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

template <class T>
inline constexpr bool kIsObjectRef = false;
template <class T>
inline constexpr bool kIsObjectRef<std::shared_ptr<T>> = true;

// A Variant coerced into a variable of type T, by the conversion of that
// type above: one place for every typed slot (parameters, fields, Pile).
template <class T>
T VariantTo(const Variant& v) {
  if constexpr (std::is_same_v<T, Integer>) {
    return VariantToInteger(v);
  } else if constexpr (std::is_same_v<T, Long>) {
    return VariantToLong(v);
  } else if constexpr (std::is_same_v<T, Single>) {
    return VariantToSingle(v);
  } else if constexpr (std::is_same_v<T, Double>) {
    return VariantToDouble(v);
  } else if constexpr (std::is_same_v<T, Boolean>) {
    return VariantToBoolean(v);
  } else if constexpr (std::is_same_v<T, String>) {
    return VariantToString(v);
  } else if constexpr (std::is_same_v<T, ObjectRef>) {
    return VariantToObject(v);
  } else {
    static_assert(kIsObjectRef<T>, "a type a Variant does not convert to");
    return VariantAs<typename T::element_type>(v);
  }
}

}  // namespace ferlan

FERLAN_PUBLIC_END
