// Memory of a long `ferlan automate` session: rounds of a typed field
// ({"keys":"abcdefghij{Enter}"} and a Modif), the drawing log never read.
// Prints the resident size after 5,000 and after 20,000 rounds, the growth
// between them (goal: under 8 MB) and the time per round.
//   long_session_bench [--surface fixed|raster] [ROUNDS]   (ROUNDS: 20000)
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>

#include "cli/automate_session.hpp"

namespace {

// Resident set size of this process, in kB (VmRSS of /proc/self/status).
long ResidentKb() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) return std::strtol(line.c_str() + 6, nullptr, 10);
  }
  return -1;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace ferlan::tool;
  std::string_view surface_name = "fixed";
  long rounds = 20000;
  for (int i = 1; i < argc; ++i) {
    const std::string_view arg = argv[i];
    if (arg == "--surface" && i + 1 < argc) {
      surface_name = argv[++i];
    } else {
      rounds = std::strtol(argv[i], nullptr, 10);
    }
  }
  const auto surface = SurfaceByName(surface_name);
  if (!surface || rounds < 5000) {
    std::fprintf(stderr, "usage: long_session_bench [--surface fixed|raster] [ROUNDS >= 5000]\n");
    return 2;
  }
  AutomateSession session(*surface);
  for (const char* setup : {R"({"call":"InitKyF"})", R"({"call":"DimensionFeuille","args":[25]})"}) {
    session.Handle(setup);
  }
  const std::string keys = R"({"keys":"abcdefghij{Enter}"})";
  const std::string modif =
      R"({"call":"Modif","args":[936,12,1260,20,2310,1155,"C","Martin",0,"F"]})";
  long at_5000 = 0;
  const auto start = std::chrono::steady_clock::now();
  for (long round = 1; round <= rounds; ++round) {
    session.Handle(keys);
    if (session.Handle(modif).find(R"("ok":true)") == std::string::npos) {
      std::fprintf(stderr, "round %ld: Modif failed\n", round);
      return 1;
    }
    if (round == 5000) {
      at_5000 = ResidentKb();
      std::printf("after %6ld rounds: %7.1f MB resident\n", round, at_5000 / 1024.0);
    }
  }
  const double seconds =
      std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  const long at_end = ResidentKb();
  std::printf("after %6ld rounds: %7.1f MB resident\n", rounds, at_end / 1024.0);
  std::printf("growth after round 5,000: %.1f MB (goal: under 8 MB)\n",
              (at_end - at_5000) / 1024.0);
  std::printf("time per round: %.1f us (%s surface)\n", seconds * 1e6 / rounds,
              std::string(surface_name).c_str());
  return at_end - at_5000 < 8 * 1024 ? 0 : 1;
}
