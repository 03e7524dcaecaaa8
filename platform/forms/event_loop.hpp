// The seam between the forms runtime and a front-end's events. A front-end
// delivers its key events to the form's handlers and runs the timers it
// made, both inside DoEvents only: that is the one point at which the host's
// code runs while the component waits.
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::forms {

class EventLoop {
 public:
  virtual ~EventLoop() = default;
  // Delivers pending key events to the form's handlers and fires due timers,
  // then returns. May be re-entered from a handler.
  virtual void DoEvents() = 0;
  // A stopped timer (Enabled False, Interval 0) whose on_tick runs inside
  // DoEvents once it is enabled with an interval. The loop does not keep the
  // timer alive: dropping the last reference stops it.
  virtual TimerRef CreateTimer(std::function<void()> on_tick) = 0;

  // Says whether the caller does nothing of its own between two DoEvents
  // (no virtual key waits to be read): only then may a loop let idle time
  // go by in one step or sleep. A loop without it keeps to its own default.
  void SetCallerIdle(std::function<bool()> caller_idle) { caller_idle_ = std::move(caller_idle); }
  // Drops what a session lent the loop (this check, and in a front-end its
  // key script and form): called as the session ends, since a front-end's
  // loop may outlive it and run again.
  virtual void ForgetSession() { caller_idle_ = nullptr; }
  // Expires when the loop ends: a session that outlives its front-end's loop
  // (a window destroyed first) then leaves it alone.
  std::weak_ptr<const void> Alive() const { return alive_; }

 protected:
  // The check's answer, or `unset` when no check was given.
  bool CallerIdle(bool unset) const { return caller_idle_ ? caller_idle_() : unset; }

 private:
  std::function<bool()> caller_idle_;
  std::shared_ptr<const void> alive_ = std::make_shared<int>(0);
};

}  // namespace ferlan::forms

FERLAN_PUBLIC_END
