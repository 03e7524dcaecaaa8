// The field editor's cost per key: 1,000 characters typed into an "Infini"
// field on the headless surface, through the event loop and Modif, as a user
// types them.
//
// Goals: each keystroke costs one redraw of the field (redraws_per_key 1.00)
// and nothing that grows with the keys already typed: the time of a key late
// in the field (last100_us) stays that of an early one (first100_us).
// Reads: us_per_key is the mean time of one key, wait and command and redraw
// together; the BM_TypeInfinite/250 and /1000 runs should agree on it.
#include <benchmark/benchmark.h>

#include <chrono>
#include <string>
#include <vector>

#include "ferlan/kysaisie.hpp"
#include "headless/session.hpp"

namespace {

using namespace ferlan;
using Clock = std::chrono::steady_clock;

// The field: line 2, column 5, a window of 60 columns.
constexpr Single kLT = 624;
constexpr Integer kC = 5;
constexpr Single kCT = 525;
constexpr Integer kLCM = 60;
constexpr Single kLzT = 6400;
constexpr Single kCzT = 420;

void BM_TypeInfinite(benchmark::State& state) {
  const int keys = static_cast<int>(state.range(0));
  headless::Session session;
  // A timestamp at each key, taken as the form receives it.
  std::vector<Clock::time_point> arrivals;
  arrivals.reserve(static_cast<std::size_t>(keys) + 1);
  auto forward = session.Form().on_key_down;
  session.Form().on_key_down = [&](Integer& key_code, Integer shift) {
    arrivals.push_back(Clock::now());
    forward(key_code, shift);
  };

  std::string script;
  for (int i = 0; i < keys; ++i) script += static_cast<char>('a' + i % 26);
  script += "{Enter}";

  double first_us = 0;
  double last_us = 0;
  double redraws = 0;
  double modif_us = 0;
  for (auto _ : state) {
    state.PauseTiming();
    session.Recorder().TakeLog();
    session.Surface().Cls();
    arrivals.clear();
    session.Keys().Append(script);
    String ch;
    Integer tr = 0;
    state.ResumeTiming();

    const Clock::time_point start = Clock::now();
    KySaisie{}.Modif(kLT, kC, kCT, kLCM, kLzT, kCzT, u"C", ch, tr, u"Infini");
    modif_us += std::chrono::duration<double, std::micro>(Clock::now() - start).count();

    state.PauseTiming();
    if (tr != 13 || ch.size() != static_cast<std::size_t>(keys)) {
      state.SkipWithError("the field did not take every key");
      break;
    }
    // Drawings of the field: one a pass (a key each, and the pass that reads
    // Enter) and the end's.
    int drawings = 0;
    for (const headless::DessinCall& call : session.Recorder().TakeLog()) {
      if (call.name == "Texte" && VariantToSingle(call.args[1]) == kLT) ++drawings;
    }
    redraws += static_cast<double>(drawings - 2) / keys;
    // Time from one key to the next: the pass, the redraw and the wait.
    const int span = std::min(100, keys / 2);
    auto mean_us = [&](int from) {
      const auto total = arrivals[static_cast<std::size_t>(from + span)] -
                         arrivals[static_cast<std::size_t>(from)];
      return std::chrono::duration<double, std::micro>(total).count() / span;
    };
    first_us += mean_us(0);
    last_us += mean_us(keys - span);
    state.ResumeTiming();
  }
  const auto runs = static_cast<double>(state.iterations());
  state.counters["us_per_key"] = modif_us / runs / keys;
  state.counters["first100_us"] = first_us / runs;
  state.counters["last100_us"] = last_us / runs;
  state.counters["redraws_per_key"] = redraws / runs;
  state.SetItemsProcessed(static_cast<std::int64_t>(keys) * state.iterations());
}
BENCHMARK(BM_TypeInfinite)->Arg(250)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
