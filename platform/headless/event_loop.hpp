// The headless event loop: deterministic by construction. Each DoEvents
// moves the virtual clock, delivers at most one item of the key script to
// the form, then fires the timers that are due, in the order they were
// made. Nothing waits on the real world.
//
// The clock moves 1 ms a DoEvents, except over idle time once the caller
// allows it: while a {wait:N} runs or the script is empty, and the last
// DoEvents did nothing either, it moves at once to the next deadline (the
// next timer, the end of the wait, starvation). Timers fire at the same
// virtual times and as often; a long wait costs a few calls, not N.
//
// Except 1 ms timers, which coalesce over idle time as a platform's timer
// messages do when it cannot keep up: their ticks do not stop a skip, and
// one tick comes at its end, and again 1 ms after anything else happened
// (a key, another timer). The caret follows its position with such a timer:
// it then sees every change at the same time as with 1 ms steps, while a
// long wait inside the field editor costs a few calls, not one a millisecond.
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
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::headless {

class EventLoop final : public forms::EventLoop {
 public:
  static constexpr std::int64_t kStarvationMs = 10000;
  static constexpr Long kCoalescedIntervalMs = 1;

  // Pre: `clock` and `script` outlive the loop.
  EventLoop(VirtualClock& clock, KeyScript& script);
  // The timers a host still holds are orphaned: their clock goes with the loop.
  ~EventLoop() override;
  EventLoop(const EventLoop&) = delete;
  EventLoop& operator=(const EventLoop&) = delete;

  // The form whose handlers get the keys; without one keys are dropped.
  void SetForm(std::shared_ptr<forms::Form> form) { form_ = std::move(form); }
  // How Env.Abandon is written, for {abandon} and for starvation.
  void SetAbandonWriter(std::function<void(Boolean)> write) { write_abandon_ = std::move(write); }
  // Idle time passes in one step only while SetCallerIdle's check says so;
  // without that check the clock moves 1 ms a DoEvents.

  void DoEvents() override;
  TimerRef CreateTimer(std::function<void()> on_tick) override;

  // A new request begins: starvation counts from zero again, and an Abandon
  // that starvation set is cleared.
  void BeginCall();
  // The script ran dry for kStarvationMs since the last BeginCall.
  bool Starved() const { return starved_; }
  // How many DoEvents have run: the real cost of virtual time.
  std::int64_t Calls() const { return calls_; }

 private:
  // The milliseconds this DoEvents lets pass: 1, or up to the next deadline
  // over idle time.
  std::int64_t Step();
  // Delivers the front item, `ms` of a wait; gives false when the script is
  // empty. Sets `acted` when a key or an {abandon} went out.
  bool DeliverOne(std::int64_t ms, bool& acted);
  void DropFinishedWaits();
  // Gives whether a timer fired that does not coalesce.
  bool FireDueTimers();
  static bool Coalesces(const forms::Timer& timer);

  VirtualClock& clock_;
  KeyScript& script_;
  std::shared_ptr<forms::Form> form_;
  std::function<void(Boolean)> write_abandon_;
  // Each timer made, not owned, with its address: one thread runs the loop,
  // so a timer not expired can be looked at through it without taking a
  // share; a share is taken only while it fires.
  struct Made {
    std::weak_ptr<forms::Timer> owner;
    forms::Timer* timer = nullptr;
  };
  std::vector<Made> timers_;
  std::int64_t empty_ms_ = 0;
  std::int64_t calls_ = 0;
  bool starved_ = false;
  // The last DoEvents delivered no key and fired no timer.
  bool last_idle_ = false;
  int firing_depth_ = 0;
};

}  // namespace ferlan::headless

FERLAN_PUBLIC_END
