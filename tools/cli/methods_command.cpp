#include "cli/methods_command.hpp"

#include <cstdio>

#include "ferlan/method_table.hpp"

namespace ferlan::tool {

void PrintMethods(std::ostream& out) {
  for (const MethodInfo& m : MethodTable()) {
    char id[16];
    std::snprintf(id, sizeof id, "0x%08X", static_cast<unsigned>(m.dispid));
    out << id << ' ' << m.name << '\n';
  }
}

}  // namespace ferlan::tool
