// The window front-end under an X server (run it under Xvfb:
// `xvfb-run -a build/bench/window_bench`): what an idle field costs, and how
// soon a typed key shows.
//
//  idle: a field waits 10 s with its caret blinking; the process's processor
//        time over that span, as a share of one core, and its wake-ups a
//        second (returns from the loop's sleep, and voluntary context
//        switches as the system counts them).
//  keys: 200 keys sent to the window as X key events from another
//        connection; for each, the time from sending it to the frame that
//        shows it presented. Median and 99th percentile; and the processor
//        time of the thread that runs the window (key handling, drawing,
//        composing and copying the frame) per key, and that of composing
//        and copying frames alone per frame, which the machine's load
//        affects less than the latencies.
//  size: the resident memory with the form of 12 lines, with the form made
//        4,000 pixels square (the frame kept whole is then 64 MB) and with
//        it small again: what a window maximised once keeps.
#include <X11/Xlib.h>
#include <X11/keysym.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <thread>
#include <vector>

#include "ferlan/kysaisie.hpp"
#include "window/window.hpp"

namespace {

using Clock = std::chrono::steady_clock;
using ferlan::Integer;
using ferlan::KySaisie;
using ferlan::String;

double ProcessorSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
         static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

double ThreadProcessorSeconds() {
  timespec t{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) / 1e9;
}

long VoluntarySwitches() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_nvcsw;
}

double ResidentMegabytes() {
  std::ifstream statm("/proc/self/statm");
  long pages = 0;
  long resident = 0;
  statm >> pages >> resident;
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

ferlan::TimerRef After(ferlan::headless::Session& session, ferlan::Long ms,
                       std::function<void()> once) {
  auto done = std::make_shared<bool>(false);
  ferlan::TimerRef timer = session.Global().CreateTimer([done, once = std::move(once)] {
    if (!*done) once();
    *done = true;
  });
  timer->SetEnabled(true);
  timer->SetInterval(ms);
  return timer;
}

void SendKey(Display* display, unsigned long window, KeySym symbol, Time& time) {
  XKeyEvent key{};
  key.display = display;
  key.window = window;
  key.root = XDefaultRootWindow(display);
  key.same_screen = True;
  key.keycode = XKeysymToKeycode(display, symbol);
  for (int type : {KeyPress, KeyRelease}) {
    key.type = type;
    key.time = ++time;
    XEvent event{};
    event.xkey = key;
    XSendEvent(display, window, True, type == KeyPress ? KeyPressMask : KeyReleaseMask, &event);
  }
  XFlush(display);
}

}  // namespace

int main() {
  std::unique_ptr<ferlan::window::Window> window;
  try {
    window = std::make_unique<ferlan::window::Window>("Ferlan bench");
  } catch (const ferlan::PlatformError& e) {
    std::fprintf(stderr, "window_bench: no display (%s); run it under xvfb-run -a\n",
                 e.Description().c_str());
    return 2;
  }
  auto session = window->OpenSession();
  KySaisie k;
  k.InitKyF();
  k.DimensionFeuille(12, 60);
  const auto settle_end = Clock::now() + std::chrono::milliseconds(300);
  while (Clock::now() < settle_end) window->Loop().DoEvents();

  // Idle: a field waits 10 s.
  {
    ferlan::TimerRef end = After(*session, 10000, [&] { session->Env().Abandon = true; });
    const double cpu0 = ProcessorSeconds();
    const long switches0 = VoluntarySwitches();
    const auto sleeps0 = window->Loop().Sleeps();
    const auto frames0 = window->Frames();
    const auto frame_cpu0 = window->FrameProcessorTime();
    const auto t0 = Clock::now();
    String m = u"Dupont";
    Integer tr = 0;
    k.ModD(m, u"A", 3, 12, k.WinCol(12), 30, tr);
    const double wall = std::chrono::duration<double>(Clock::now() - t0).count();
    const double cpu = ProcessorSeconds() - cpu0;
    std::printf(
        "idle field, %.1f s: processor %.3f%% of a core, %.1f wake-ups/s "
        "(%.1f voluntary switches/s), %.1f frames/s\n",
        wall, 100.0 * cpu / wall, (window->Loop().Sleeps() - sleeps0) / wall,
        (VoluntarySwitches() - switches0) / wall, (window->Frames() - frames0) / wall);
    std::printf(
        "idle field: %.3f ms of processor a frame (the caret's blink)\n",
        1000.0 * std::chrono::duration<double>(window->FrameProcessorTime() - frame_cpu0).count() /
            static_cast<double>(std::max<std::uint64_t>(window->Frames() - frames0, 1)));
    session->Env().Abandon = false;
  }

  // Keys: 200 typed into a field, each timed to its frame.
  Display* display = XOpenDisplay(nullptr);
  const unsigned long id = window->NativeHandle();
  std::vector<double> latencies;
  std::thread sender([&] {
    Time time = 0;
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    for (int i = 0; i < 200; ++i) {
      // Ten letters, then ten Backspaces, so that the field never fills.
      const KeySym symbol = (i / 10) % 2 == 0 ? XK_a + (i % 10) : XK_BackSpace;
      const auto frames = window->Frames();
      const auto sent = Clock::now();
      SendKey(display, id, symbol, time);
      const auto give_up = sent + std::chrono::seconds(1);
      while (window->Frames() == frames && Clock::now() < give_up) {
        // The latency is read from the frame's own time: a coarse poll leaves it
        // exact and keeps this thread off the window's core.
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
      }
      latencies.push_back(
          std::chrono::duration<double, std::milli>(window->LastFrameTime() - sent).count());
      // Lets the caret's follow-up frame pass before the next key.
      std::this_thread::sleep_for(std::chrono::milliseconds(40));
    }
    // F2 leaves the field.
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    SendKey(display, id, XK_F2, time);
  });
  ferlan::TimerRef end = After(*session, 60000, [&] { session->Env().Abandon = true; });
  String m;
  Integer tr = 0;
  const double thread_cpu0 = ThreadProcessorSeconds();
  const auto key_frames0 = window->Frames();
  const auto frame_cpu0 = window->FrameProcessorTime();
  const auto key_t0 = Clock::now();
  k.ModD(m, u"A", 5, 12, k.WinCol(12), 40, tr);
  const double thread_cpu = ThreadProcessorSeconds() - thread_cpu0;
  const auto key_frames = window->Frames() - key_frames0;
  const double frame_cpu =
      std::chrono::duration<double>(window->FrameProcessorTime() - frame_cpu0).count();
  const double key_wall = std::chrono::duration<double>(Clock::now() - key_t0).count();
  sender.join();
  XCloseDisplay(display);
  std::sort(latencies.begin(), latencies.end());
  const auto at = [&](double q) {
    return latencies[std::min(latencies.size() - 1,
                              static_cast<std::size_t>(q * static_cast<double>(latencies.size())))];
  };
  std::printf("200 keys, key event to frame presented: median %.3f ms, p99 %.3f ms, max %.3f ms\n",
              at(0.5), at(0.99), latencies.back());
  const double frames_n = static_cast<double>(std::max<std::uint64_t>(key_frames, 1));
  std::printf(
      "window thread processor time: %.3f ms a key (key, editor and frame); frames alone "
      "(composing and copying): %.3f ms a frame (%llu frames over %.1f s)\n",
      1000.0 * thread_cpu / static_cast<double>(latencies.size()), 1000.0 * frame_cpu / frames_n,
      static_cast<unsigned long long>(key_frames), key_wall);

  // Size: the form made large, then as it was; each size shown before it is read.
  const auto show = [&] {
    const auto until = Clock::now() + std::chrono::milliseconds(300);
    while (Clock::now() < until) window->Loop().DoEvents();
  };
  ferlan::forms::Form& form = session->Form();
  const ferlan::Single width = form.Width();
  const ferlan::Single height = form.Height();
  const double small = ResidentMegabytes();
  form.SetWidth(4000 * 15);
  form.SetHeight(4000 * 15);
  show();
  const double large = ResidentMegabytes();
  form.SetWidth(width);
  form.SetHeight(height);
  show();
  std::printf("resident memory: %.1f MB, %.1f MB with the form 4000 px square, %.1f MB after\n",
              small, large, ResidentMegabytes());
  return 0;
}
