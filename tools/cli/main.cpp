// The command: `ferlan methods`, `ferlan automate` and `ferlan run`.
#include <cstdio>
#include <iostream>
#include <string_view>

#include "cli/automate_session.hpp"
#include "cli/methods_command.hpp"
#include "cli/run_command.hpp"
#include "cli/version.hpp"

namespace {

constexpr const char* kUsage =
    "usage: ferlan methods\n"
    "       ferlan automate [--surface fixed|raster]\n"
    "       ferlan run FILE\n"
    "       ferlan help | --help | --version\n"
    "\n"
    "  methods     print the method table: dispatch identifier and name\n"
    "  automate    answer JSON requests, one a line, from standard input\n"
    "              --surface fixed|raster   the surface to draw on (fixed)\n"
    "  run FILE    play FILE's requests in a window\n"
    "  help, --help  print this usage\n"
    "  --version     print the version of the package\n";

int Usage() {
  std::cerr << kUsage;
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace ferlan::tool;
  if (argc < 2) return Usage();
  const std::string_view command = argv[1];
  if ((command == "help" || command == "--help") && argc == 2) {
    std::cout << kUsage << std::flush;
    return std::cout ? 0 : 1;
  }
  if (command == "--version" && argc == 2) {
    std::cout << "ferlan " << kFerlanVersion << '\n' << std::flush;
    return std::cout ? 0 : 1;
  }
  if (command == "methods" && argc == 2) {
    PrintMethods(std::cout);
    std::cout << std::flush;
    return std::cout ? 0 : 1;
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
    if (!session.Run(std::cin, std::cout)) {
      std::cerr << "ferlan: an answer could not be written; the session ends\n";
      return 1;
    }
    // A read that failed (a directory, an I/O error) ends the input like its
    // end does; only the stream's error flag tells them apart.
    if (std::ferror(stdin)) {
      std::cerr << "ferlan: standard input could not be read; the session ends\n";
      return 1;
    }
    return 0;
  }
  if (command == "run" && argc == 3) return RunInWindow(argv[2], std::cout, std::cerr);
  return Usage();
}
