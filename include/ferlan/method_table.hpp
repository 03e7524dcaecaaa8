// The method table of KySaisie: the 93 methods in their fixed order, with
// dispatch identifiers from 0x60030000 and an invoker that takes and gives
// Variants, as a host bound to the interface by name calls them.
#pragma once

#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "ferlan/kysaisie.hpp"
#include "ferlan/variant.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan {

// Calls the method with `args` in declared order; trailing optional
// arguments may be left out. Arguments the method writes are written back
// into `args`, also when it raises (the changes made before the error stay
// visible). Gives the method's result, Empty for a procedure.
// Errors: 450 for too many arguments, 449 for a required one left out, 13
// for an argument of the wrong type, and whatever the method itself raises.
using Invoker = std::function<Variant(KySaisie& self, std::vector<Variant>& args)>;

struct MethodInfo {
  std::string_view name;  // UTF-8, accents kept
  Long dispid;
  Invoker invoke;
  // The values of the last defaults.size() parameters when left out (Empty
  // for an optional output: nullptr); other optional outputs may be left
  // out too. `arity` counts the parameters, 0 for a method not built.
  std::vector<Variant> defaults;
  std::size_t arity = 0;
};

constexpr Long kFirstDispId = 0x60030000;

std::span<const MethodInfo> MethodTable();
// The method of that name, or nullptr. Names are matched regardless of
// case, as late binding matches them (and as members are matched).
const MethodInfo* FindMethod(std::string_view name);

}  // namespace ferlan

FERLAN_PUBLIC_END
