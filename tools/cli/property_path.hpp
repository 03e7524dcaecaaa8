// Dotted property names of `get` and `set` that reach inside an object:
// "Font.Size" on a surface is the property Size of its Font.
#pragma once

#include <string>
#include <utility>

#include "ferlan/variant.hpp"

namespace ferlan::tool {

// Follows every name of `members` but the last, each a property that holds
// an object, and gives that object with the last name. `path` is the whole
// request name, for the error: 438 when a step is missing or no object.
std::pair<ObjectRef, std::string> ResolveMember(ObjectRef object, const std::string& members,
                                                const std::string& path);

}  // namespace ferlan::tool
