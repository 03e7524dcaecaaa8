// `ferlan methods`: the method table, one line a method.
#pragma once

#include <ostream>

namespace ferlan::tool {

// Prints "0x60030000 IntercepteClavierKY" and so on, in the interface's order.
void PrintMethods(std::ostream& out);

}  // namespace ferlan::tool
