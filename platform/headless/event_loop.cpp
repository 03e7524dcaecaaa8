#include "headless/event_loop.hpp"

#include <algorithm>
#include <cstdint>

namespace ferlan::headless {

EventLoop::EventLoop(VirtualClock& clock, KeyScript& script) : clock_(clock), script_(script) {}

void EventLoop::DoEvents() {
  ++calls_;
  DropFinishedWaits();
  const std::int64_t step = Step();
  last_idle_ = false;  // a handler's own DoEvents does not skip
  bool acted = false;
  clock_.Advance(step);
  if (DeliverOne(step, acted)) {
    empty_ms_ = 0;
  } else if ((empty_ms_ += step) >= kStarvationMs && !starved_) {
    starved_ = true;
    acted = true;
    if (write_abandon_) write_abandon_(true);
  }
  const bool fired = FireDueTimers();
  last_idle_ = !acted && !fired;
}

bool EventLoop::Coalesces(const forms::Timer& timer) {
  return timer.Interval() == kCoalescedIntervalMs;
}

std::int64_t EventLoop::Step() {
  if (!last_idle_ || !CallerIdle(false)) return 1;
  std::int64_t limit = INT64_MAX;
  if (!script_.Empty()) {
    if (script_.Front().kind != KeyItem::Kind::Wait) return 1;
    limit = script_.Front().wait_ms;
  } else if (!starved_) {
    limit = kStarvationMs - empty_ms_;
  }
  const std::int64_t now = clock_.Now();
  for (const Made& made : timers_) {
    if (!made.owner.expired() && !Coalesces(*made.timer)) {
      if (auto due = made.timer->NextDue()) limit = std::min(limit, *due - now);
    }
  }
  // With no deadline ahead, time goes on as the caller asks for it.
  return limit == INT64_MAX ? 1 : std::max<std::int64_t>(1, limit);
}

void EventLoop::DropFinishedWaits() {
  // A finished wait gives way to the next item within the same millisecond.
  while (!script_.Empty() && script_.Front().kind == KeyItem::Kind::Wait &&
         script_.Front().wait_ms == 0) {
    script_.Pop();
  }
}

bool EventLoop::DeliverOne(std::int64_t ms, bool& acted) {
  DropFinishedWaits();
  if (script_.Empty()) return false;
  // The key's fields are copied out (not its source text): a handler may
  // queue more keys and so move the front.
  const KeyItem& front = script_.Front();
  const bool has_down = front.has_down;
  const Integer down_code = front.key_code;
  const Integer shift = front.shift;
  const bool has_press = front.has_press;
  const Integer press_ascii = front.key_ascii;
  switch (front.kind) {
    case KeyItem::Kind::Wait:
      // These milliseconds pass with no key; Step never goes past the wait.
      script_.Front().wait_ms -= static_cast<Long>(ms);
      if (script_.Front().wait_ms <= 0) script_.Pop();
      return true;
    case KeyItem::Kind::Abandon:
      script_.Pop();
      acted = true;
      if (write_abandon_) write_abandon_(true);
      return true;
    case KeyItem::Kind::Key:
      break;
  }
  script_.Pop();
  acted = true;
  if (!form_) return true;
  // Both events of one keystroke come inside the same DoEvents, as on the
  // platform; a handler that zeroes KeyCode does not stop the KeyPress.
  if (has_down) {
    Integer key_code = down_code;
    form_->RaiseKeyDown(key_code, shift);
  }
  if (has_press) {
    Integer key_ascii = press_ascii;
    form_->RaiseKeyPress(key_ascii);
  }
  return true;
}

EventLoop::~EventLoop() {
  for (const Made& made : timers_) {
    if (const auto timer = made.owner.lock()) timer->Orphan();
  }
}

TimerRef EventLoop::CreateTimer(std::function<void()> on_tick) {
  auto timer = std::make_shared<forms::Timer>(std::move(on_tick),
                                              [&clock = clock_] { return clock.Now(); });
  timers_.push_back({timer, timer.get()});
  return timer;
}

bool EventLoop::FireDueTimers() {
  // Dropped timers leave the list only outside any tick, so that the walk
  // of an outer DoEvents keeps its place when a tick runs DoEvents.
  if (firing_depth_ == 0) std::erase_if(timers_, [](const Made& t) { return t.owner.expired(); });
  ++firing_depth_;
  bool fired = false;
  try {
    // By index: a tick may make a timer, which comes last.
    for (std::size_t i = 0; i < timers_.size(); ++i) {
      if (timers_[i].owner.expired()) continue;
      const std::int64_t now = clock_.Now();
      if (!timers_[i].timer->Due(now)) continue;
      // Held while it fires: its tick may drop the last share of it.
      if (const std::shared_ptr<forms::Timer> timer = timers_[i].owner.lock()) {
        // The tick of a coalescing timer leaves the loop idle.
        fired = fired || !Coalesces(*timer);
        timer->Fire(now);
      }
    }
  } catch (...) {
    --firing_depth_;
    throw;
  }
  --firing_depth_;
  return fired;
}

void EventLoop::BeginCall() {
  empty_ms_ = 0;
  last_idle_ = false;
  if (starved_ && write_abandon_) write_abandon_(false);
  starved_ = false;
}

}  // namespace ferlan::headless
