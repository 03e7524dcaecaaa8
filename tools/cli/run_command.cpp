#include "cli/run_command.hpp"

#include <filesystem>
#include <fstream>
#include <memory>
#include <ostream>

#include "cli/automate_session.hpp"
#if FERLAN_HAVE_WINDOW
#include "window/window.hpp"
#endif

namespace ferlan::tool {

int RunInWindow(const std::string& file, std::ostream& out, std::ostream& err) {
#if FERLAN_HAVE_WINDOW
  // A directory opens as a stream but reads nothing: it would show an empty
  // window with no word of why.
  std::ifstream in(file);
  if (!in || std::filesystem::is_directory(file)) {
    err << "ferlan: cannot read " << file << '\n';
    return 2;
  }
  std::unique_ptr<window::Window> window;
  try {
    window = std::make_unique<window::Window>("Ferlan");
  } catch (const PlatformError& e) {
    err << "ferlan: no display to open a window on (" << e.Description() << ")\n";
    return 2;
  }
  {
    AutomateSession session(SurfaceKind::Raster, [&w = *window] { return w.OpenSession(); });
    std::string line;
    while (!window->Closed() && std::getline(in, line)) {
      if (line.find_first_not_of(" \t\r") == std::string::npos) continue;
      out << session.Handle(line) << '\n' << std::flush;
      window->Present();
    }
    // The screen stays for the person to read until the window closes.
    while (!window->Closed()) window->Loop().DoEvents();
  }
  return 0;
#else
  (void)file;
  (void)out;
  err << "ferlan: `run` needs the window front-end, which this build leaves out\n";
  return 2;
#endif
}

}  // namespace ferlan::tool
