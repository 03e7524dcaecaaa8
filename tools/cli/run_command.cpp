#include "cli/run_command.hpp"

#include <chrono>
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
    // The lines are read and answered as `automate` does, each answer shown
    // at once; closing the window ends the reading. Between the lines the
    // window still answers the person, every 10 ms at most: a close stops
    // the file, an uncovered window is shown again, keys typed ahead keep
    // for the next field.
    auto taken = std::chrono::steady_clock::now();
    const bool written = session.Run(in, out, [&w = *window, &taken] {
      const auto now = std::chrono::steady_clock::now();
      if (now - taken >= std::chrono::milliseconds(10)) {
        taken = now;
        w.Loop().TakeEvents();
      }
      w.Present();
      return !w.Closed();
    });
    if (!written) {
      err << "ferlan: an answer could not be written; the session ends\n";
      return 1;
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
