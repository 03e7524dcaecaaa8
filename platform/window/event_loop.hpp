// The window front-end's event loop: keys from SDL as a person types them,
// timers on the monotonic clock, both delivered inside DoEvents only.
//
// Keys: each DoEvents delivers at most one keystroke, its KeyDown and, for a
// key that gives a character, its KeyPress, as the platform raises them;
// keystrokes typed meanwhile queue in order (the key pipeline keeps one
// pending key, so two in one DoEvents would lose the first). Keys of a key
// script (the automate protocol's {"keys": ...}) follow once the keyboard's
// are delivered; their {wait:N} is N real milliseconds.
//
// Timers: a timer fires when its interval has passed since it started or
// last fired, and at least kTimerResolutionMs since it last fired. A timer
// shorter than that resolution polls (the caret's follower, 1 ms): it ticks
// once after each piece of news, that is a key delivered, the host having
// drawn since the last DoEvents (both: at once, so that its effect shares
// their frame), a window event or another timer's tick (at the resolution),
// and then no longer wakes the loop by itself: it ticks again when the loop
// wakes for anything else. Timers of the resolution or longer keep their
// schedule.
//
// Idle: a DoEvents that finds nothing to do returns at once the first time;
// when it is called again with still nothing to do (the caller is waiting
// for a key), it sleeps in the system's wait for events until the next
// event or timer deadline, kLongestSleepMs at most. A key wakes it at once.
#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <vector>

#include "forms/event_loop.hpp"
#include "forms/form.hpp"
#include "forms/timer.hpp"
#include "headless/key_script.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

union SDL_Event;

namespace ferlan::window {

class EventLoop final : public forms::EventLoop {
 public:
  // The finest step of the timers: one frame at 60 Hz. Shorter intervals
  // (the caret's 1 ms follower) tick at this pace, which the eye cannot
  // tell from faster and which keeps an idle field near zero processor.
  static constexpr std::int64_t kTimerResolutionMs = 16;
  static constexpr std::int64_t kLongestSleepMs = 500;
  // Keystrokes kept waiting at most; later ones are dropped and counted.
  static constexpr std::size_t kMostPendingKeys = 65536;

  // Pre: SDL's video is initialised for the loop's lifetime.
  EventLoop();
  // The timers a host still holds are orphaned: their clock goes with the loop.
  ~EventLoop() override;
  EventLoop(const EventLoop&) = delete;
  EventLoop& operator=(const EventLoop&) = delete;

  // The form whose handlers get the keys; without one keys are dropped.
  void SetForm(std::shared_ptr<forms::Form> form) { form_ = std::move(form); }
  // Keys queued by a script, delivered after the keyboard's; may be null.
  // Pre: the script outlives its use here (set null before it goes, as
  // ForgetSession does).
  void SetScript(headless::KeyScript* script) { script_ = script; }
  // How Env.Abandon is written: when the window closes, and for {abandon}.
  void SetAbandonWriter(std::function<void(Boolean)> write) { write_abandon_ = std::move(write); }
  void ForgetSession() override;
  // Window events other than keys and closing (resize, expose, state), and
  // the windowing system's own events (SDL_SYSWMEVENT) when enabled.
  void SetWindowEventHandler(std::function<void(const SDL_Event&)> handle) {
    window_events_ = std::move(handle);
  }
  // Runs once in each DoEvents, after keys and timers, and again after a
  // sleep: the window shows there what was drawn, and says whether it
  // presented a frame.
  void SetFrameHook(std::function<bool()> present) { present_ = std::move(present); }
  // Says, without drawing, whether the window would show something new:
  // checked at the start of each DoEvents.
  void SetChangeCheck(std::function<bool()> changed) { changed_ = std::move(changed); }

  void DoEvents() override;
  TimerRef CreateTimer(std::function<void()> on_tick) override;
  // Takes what the windowing system sent, without delivering a key or
  // firing a timer: keys queue in order for the next wait, a close or the
  // window's own events take effect. For a host busy between waits, so that
  // the system's queue never overflows and the window answers.
  void TakeEvents() { Pump(); }

  // The window was closed: Env.Abandon is True from then on.
  bool Closed() const { return closed_; }
  // The window is closed, or gone: the wait under way ends, and every later
  // one at once.
  void Close();
  // Milliseconds on the monotonic clock since the loop began.
  std::int64_t Now() const;
  // Times DoEvents slept, for the benchmark's count of wake-ups.
  std::uint64_t Sleeps() const { return sleeps_; }
  // Keystrokes translated but not yet delivered, and those dropped beyond
  // kMostPendingKeys.
  std::size_t PendingKeys() const { return keys_.size(); }
  std::uint64_t DroppedKeys() const { return dropped_keys_; }

 private:
  struct TimerEntry {
    std::weak_ptr<forms::Timer> timer;
    std::int64_t last_fired = -kTimerResolutionMs;
    // A polling timer that has seen the latest news: it does not wake the
    // loop by itself.
    bool parked = false;
  };

  void Pump();
  void Handle(const SDL_Event& event);
  // Delivers one keystroke; gives false when none is waiting.
  bool DeliverOne();
  bool DeliverScriptItem();
  // Gives whether any timer fired. `news`: a keystroke was just delivered
  // or the host drew; the polling timers then tick at once.
  bool FireDueTimers(bool news);
  // Milliseconds until the next thing to do, kLongestSleepMs at most.
  std::int64_t SleepBudget();
  bool Present();
  void Unpark();

  std::chrono::steady_clock::time_point start_;
  std::shared_ptr<forms::Form> form_;
  headless::KeyScript* script_ = nullptr;
  std::function<void(Boolean)> write_abandon_;
  std::function<void(const SDL_Event&)> window_events_;
  std::function<bool()> present_;
  std::function<bool()> changed_;
  std::deque<headless::KeyItem> keys_;
  std::uint64_t dropped_keys_ = 0;
  // What the next text the system types belongs to: a key of its own (the
  // platform's packet key), the last keystroke queued, which still lacks
  // its KeyPress, or a Ctrl or Alt chord, whose text the platform drops.
  enum class NextText { kOwnKey, kJoinsKey, kDropped };
  NextText next_text_ = NextText::kOwnKey;
  // The end of a script's {wait:N} under way, or -1.
  std::int64_t script_wait_until_ = -1;
  std::vector<TimerEntry> timers_;
  int firing_depth_ = 0;
  int idle_turns_ = 0;
  bool closed_ = false;
  std::uint64_t sleeps_ = 0;
};

}  // namespace ferlan::window

FERLAN_PUBLIC_END
