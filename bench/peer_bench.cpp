// Ferlan side by side with the ncurses form library: the cost of one key
// typed into an 80-column field.
//
// Each round enters a value of 80 characters into an empty field of 80
// columns and leaves it, on both sides:
//  - Ferlan: one Modif call fed 80 keys and Enter by the key script; each
//    key goes through the event loop, the editor's pass and a redraw of the
//    field. Headless: the fixed surface with its recorded drawing calls.
//    Raster: the Cairo surface, pixels drawn.
//  - ncurses: form_driver for each key and then, in memory, wnoutrefresh
//    (the window copied to the virtual screen); to a pseudo-terminal,
//    wnoutrefresh and doupdate, the escape sequences read back from the
//    master side. Then validation, the value read back and the field
//    cleared, as the leaving key does.
//
// Reads: the CPU time of a round (the kernel's share of the pseudo-terminal
// included) over its 80 keys, printed after the table as Ferlan's time over
// ncurses's for both pairs: below 1 Ferlan is the cheaper. CPU time, not
// elapsed time, so that other work on the machine does not count.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <form.h>
#include <ncurses.h>
#include <pty.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

#include "ferlan/kysaisie.hpp"
#include "headless/session.hpp"
#if FERLAN_HAVE_RASTER
#include "raster/raster_canvas.hpp"
#endif

namespace {

using namespace ferlan;

constexpr int kColumns = 80;
constexpr int kKeys = 80;

// The field: line 2, column 2, 80 columns of the fixed font (105 twips).
constexpr Single kLT = 624;
constexpr Integer kC = 2;
constexpr Single kCT = 210;
constexpr Single kLzT = 105 * kColumns + 100;
constexpr Single kCzT = 105;

std::string Typed() {
  std::string keys;
  for (int i = 0; i < kKeys; ++i) keys += static_cast<char>('a' + i % 26);
  return keys;
}

void FerlanRounds(benchmark::State& state, headless::Session& session) {
  const std::string script = Typed() + "{Enter}";
  for (auto _ : state) {
    session.Keys().Append(script);
    String ch;
    Integer tr = 0;
    KySaisie{}.Modif(kLT, kC, kCT, kColumns, kLzT, kCzT, u"C", ch, tr, u"");
    state.PauseTiming();
    if (tr != 13 || ch.size() != static_cast<std::size_t>(kKeys)) {
      state.SkipWithError("the field did not take every key");
      break;
    }
    // Nothing of the rounds before is kept.
    session.Recorder().TakeLog();
    session.Surface().Cls();
    state.ResumeTiming();
  }
}

void BM_FerlanHeadless(benchmark::State& state) {
  headless::Session session;
  FerlanRounds(state, session);
}
BENCHMARK(BM_FerlanHeadless)->Unit(benchmark::kMicrosecond);

#if FERLAN_HAVE_RASTER
void BM_FerlanRaster(benchmark::State& state) {
  headless::Session session(raster::RasterCanvasFactory());
  FerlanRounds(state, session);
}
BENCHMARK(BM_FerlanRaster)->Unit(benchmark::kMicrosecond);
#endif

// One ncurses screen with a form of one 80-column field, on any output.
class CursesForm {
 public:
  CursesForm(std::FILE* out, std::FILE* in) {
    // The window must be wider than a default 80-column terminal.
    setenv("COLUMNS", "120", 1);
    setenv("LINES", "40", 1);
    screen_ = newterm("xterm", out, in);
    if (!screen_) return;
    set_term(screen_);
    noecho();
    cbreak();
    fields_[0] = new_field(1, kColumns, 1, 1, 0, 0);
    field_opts_off(fields_[0], O_AUTOSKIP);
    set_field_back(fields_[0], A_UNDERLINE);
    form_ = new_form(fields_);
    window_ = newwin(4, kColumns + 4, 0, 0);
    set_form_win(form_, window_);
    set_form_sub(form_, derwin(window_, 3, kColumns + 2, 0, 0));
    post_form(form_);
  }
  ~CursesForm() {
    if (!screen_) return;
    unpost_form(form_);
    free_form(form_);
    free_field(fields_[0]);
    delwin(window_);
    endwin();
    delscreen(screen_);
  }
  CursesForm(const CursesForm&) = delete;
  CursesForm& operator=(const CursesForm&) = delete;

  bool Ready() const { return form_ != nullptr; }
  WINDOW* Window() const { return window_; }
  void Key(int c) { form_driver(form_, c); }
  // The leaving key: the value validated and read, the field emptied.
  std::size_t Leave() {
    form_driver(form_, REQ_VALIDATION);
    const std::string value = field_buffer(fields_[0], 0);
    set_field_buffer(fields_[0], 0, "");
    form_driver(form_, REQ_BEG_FIELD);
    return value.size();
  }

 private:
  SCREEN* screen_ = nullptr;
  FIELD* fields_[2] = {nullptr, nullptr};
  FORM* form_ = nullptr;
  WINDOW* window_ = nullptr;
};

// Rounds of 80 keys; `show` brings a key's change to the screen.
template <typename Show>
void CursesRounds(benchmark::State& state, CursesForm& form, Show show) {
  const std::string keys = Typed();
  for (auto _ : state) {
    for (char c : keys) {
      form.Key(c);
      show();
    }
    const std::size_t length = form.Leave();
    show();
    if (length != static_cast<std::size_t>(kColumns)) {
      state.SkipWithError("the field did not take every key");
      break;
    }
  }
}

void BM_CursesMemory(benchmark::State& state) {
  std::FILE* out = std::fopen("/dev/null", "w");
  std::FILE* in = std::fopen("/dev/null", "r");
  {
    CursesForm form(out, in);
    if (!form.Ready()) {
      state.SkipWithError("no ncurses screen");
    } else {
      CursesRounds(state, form, [&] { wnoutrefresh(form.Window()); });
    }
  }
  std::fclose(out);
  std::fclose(in);
}
BENCHMARK(BM_CursesMemory)->Unit(benchmark::kMicrosecond);

void BM_CursesPty(benchmark::State& state) {
  int master = -1;
  int slave = -1;
  winsize size{};
  size.ws_row = 40;
  size.ws_col = 120;
  if (openpty(&master, &slave, nullptr, nullptr, &size) != 0) {
    state.SkipWithError("no pseudo-terminal");
    return;
  }
  fcntl(master, F_SETFL, fcntl(master, F_GETFL) | O_NONBLOCK);
  std::FILE* out = fdopen(slave, "w");
  std::FILE* in = fdopen(dup(slave), "r");
  std::size_t bytes = 0;
  auto drain = [&] {
    char buffer[4096];
    for (ssize_t n; (n = read(master, buffer, sizeof buffer)) > 0;) {
      bytes += static_cast<std::size_t>(n);
    }
  };
  {
    CursesForm form(out, in);
    if (!form.Ready()) {
      state.SkipWithError("no ncurses screen");
    } else {
      drain();
      CursesRounds(state, form, [&] {
        wnoutrefresh(form.Window());
        doupdate();
        drain();
      });
    }
  }
  std::fclose(out);
  std::fclose(in);
  close(master);
  benchmark::DoNotOptimize(bytes);
}
BENCHMARK(BM_CursesPty)->Unit(benchmark::kMicrosecond);

// The usual table, and the CPU time of a key of each benchmark kept for the
// ratios.
class Collector : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
        // In microseconds, the unit every benchmark here gives.
        us_per_key[run.run_name.function_name] = run.GetAdjustedCPUTime() / kKeys;
      }
    }
    ConsoleReporter::ReportRuns(runs);
  }
  std::map<std::string, double> us_per_key;
};

void PrintRatio(const Collector& c, const char* what, const char* ferlan, const char* curses) {
  const auto f = c.us_per_key.find(ferlan);
  const auto n = c.us_per_key.find(curses);
  if (f == c.us_per_key.end() || n == c.us_per_key.end() || n->second <= 0) return;
  std::printf("%-34s %8.3f us  %8.3f us  %6.2f\n", what, f->second, n->second,
              f->second / n->second);
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  Collector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  benchmark::Shutdown();
  std::printf("\nOne key into an 80-column field     Ferlan       ncurses    ratio\n");
  PrintRatio(collector, "headless / wnoutrefresh in memory", "BM_FerlanHeadless",
             "BM_CursesMemory");
  PrintRatio(collector, "raster / doupdate to a pty", "BM_FerlanRaster", "BM_CursesPty");
  return 0;
}
