// Time of the headless front-end: a count of milliseconds that moves only
// when told, so every run of a test or a script sees the same times.
#pragma once

#include <cstdint>
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::headless {

class VirtualClock {
 public:
  std::int64_t Now() const { return now_; }
  // Pre: ms >= 0; time never goes back.
  void Advance(std::int64_t ms) { now_ += ms; }

 private:
  std::int64_t now_ = 0;
};

}  // namespace ferlan::headless

FERLAN_PUBLIC_END
