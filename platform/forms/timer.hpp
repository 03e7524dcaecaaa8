// A timer: Enabled and Interval, and a tick that its event loop runs inside
// DoEvents. As on the platform, enabling it or setting its interval starts
// the count again from that moment.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::forms {

class Timer final : public ferlan::Timer {
 public:
  // Milliseconds on the event loop's clock.
  using Clock = std::function<std::int64_t()>;

  // Stopped (Enabled False, Interval 0) until the owner starts it.
  Timer(std::function<void()> on_tick, Clock now);

  Boolean Enabled() const override { return enabled_; }
  void SetEnabled(Boolean v) override;
  Long Interval() const override { return interval_; }
  // Errors: 5 for a negative interval.
  void SetInterval(Long v) override;

  // Enabled, with an interval, that interval elapsed since the last start or
  // tick, and not inside its own tick.
  bool Due(std::int64_t now) const;
  // When it will next be due, for a loop that skips idle time; nothing when
  // stopped or inside its own tick.
  std::optional<std::int64_t> NextDue() const;
  // Runs the tick and counts the next interval from `now`. A tick that calls
  // DoEvents doesn't see its own timer fire again meanwhile.
  void Fire(std::int64_t now);
  // Its loop has gone while the host still holds it: it keeps its
  // properties, but reads that loop's clock no more and never ticks again.
  void Orphan();

  Variant GetProperty(std::string_view name) override;
  void SetProperty(std::string_view name, const Variant& value) override;

 private:
  std::function<void()> on_tick_;
  Clock now_;
  Boolean enabled_ = false;
  Long interval_ = 0;
  std::int64_t started_at_ = 0;
  bool in_tick_ = false;
};

}  // namespace ferlan::forms

FERLAN_PUBLIC_END
