// The headless event loop: deterministic by construction. Each DoEvents
// moves the virtual clock 1 ms, delivers at most one item of the key script
// to the form, then fires the timers that are due, in the order they were
// made. Nothing waits on the real world.
//
// Fakes: the keyboard (the key script) and the passing of time. When the
// script has stayed empty for kStarvationMs while DoEvents keeps being
// called, the component is waiting for keys that will never come: the loop
// sets Env.Abandon so that the wait ends, and says it starved.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "forms/event_loop.hpp"
#include "forms/form.hpp"
#include "forms/timer.hpp"
#include "headless/key_script.hpp"
#include "headless/virtual_clock.hpp"

namespace ferlan::headless {

class EventLoop final : public forms::EventLoop {
 public:
  static constexpr std::int64_t kStarvationMs = 10000;

  // Pre: `clock` and `script` outlive the loop.
  EventLoop(VirtualClock& clock, KeyScript& script);

  // The form whose handlers get the keys; without one keys are dropped.
  void SetForm(std::shared_ptr<forms::Form> form) { form_ = std::move(form); }
  // How Env.Abandon is written, for {abandon} and for starvation.
  void SetAbandonWriter(std::function<void(Boolean)> write) { write_abandon_ = std::move(write); }

  void DoEvents() override;
  TimerRef CreateTimer(std::function<void()> on_tick) override;

  // A new request begins: starvation counts from zero again, and an Abandon
  // that starvation set is cleared.
  void BeginCall();
  // The script ran dry for kStarvationMs since the last BeginCall.
  bool Starved() const { return starved_; }

 private:
  // Delivers the front item; gives false when the script is empty.
  bool DeliverOne();
  void FireDueTimers();

  VirtualClock& clock_;
  KeyScript& script_;
  std::shared_ptr<forms::Form> form_;
  std::function<void(Boolean)> write_abandon_;
  std::vector<std::weak_ptr<forms::Timer>> timers_;
  std::int64_t empty_ms_ = 0;
  bool starved_ = false;
  int firing_depth_ = 0;
};

}  // namespace ferlan::headless
