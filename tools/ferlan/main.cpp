// The command: `ferlan methods`, `ferlan automate` and `ferlan run`.
#include <iostream>
#include <string_view>

#include "ferlan/automate_session.hpp"
#include "ferlan/methods_command.hpp"
#include "ferlan/run_command.hpp"

namespace {

int Usage() {
  std::cerr << "usage: ferlan methods\n"
               "       ferlan automate [--surface fixed|raster]\n"
               "       ferlan run FILE\n";
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace ferlan::tool;
  if (argc < 2) return Usage();
  const std::string_view command = argv[1];
  if (command == "methods" && argc == 2) {
    PrintMethods(std::cout);
    return 0;
  }
  if (command == "automate") {
    std::string_view surface_name = "fixed";
    for (int i = 2; i < argc; ++i) {
      const std::string_view arg = argv[i];
      if (arg == "--surface" && i + 1 < argc) {
        surface_name = argv[++i];
      } else if (arg.starts_with("--surface=")) {
        surface_name = arg.substr(10);
      } else {
        return Usage();
      }
    }
    const auto surface = SurfaceByName(surface_name);
    if (!surface) {
      std::cerr << "ferlan: surface \"" << surface_name << "\" not available (fixed, raster)\n";
      return 2;
    }
    AutomateSession session(*surface);
    session.Run(std::cin, std::cout);
    return 0;
  }
  if (command == "run" && argc == 3) return RunInWindow(argv[2], std::cout, std::cerr);
  return Usage();
}
