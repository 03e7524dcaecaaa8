#include "headless/event_loop.hpp"

#include <algorithm>

namespace ferlan::headless {

EventLoop::EventLoop(VirtualClock& clock, KeyScript& script) : clock_(clock), script_(script) {}

void EventLoop::DoEvents() {
  clock_.Advance(1);
  if (DeliverOne()) {
    empty_ms_ = 0;
  } else if (++empty_ms_ >= kStarvationMs && !starved_) {
    starved_ = true;
    if (write_abandon_) write_abandon_(true);
  }
  FireDueTimers();
}

bool EventLoop::DeliverOne() {
  // A finished wait gives way to the next item within the same millisecond.
  while (!script_.Empty() && script_.Front().kind == KeyItem::Kind::Wait &&
         script_.Front().wait_ms == 0) {
    script_.Pop();
  }
  if (script_.Empty()) return false;
  // Copied out: a handler may queue more keys and so move the front.
  KeyItem item = script_.Front();
  switch (item.kind) {
    case KeyItem::Kind::Wait:
      // This millisecond passes with no key.
      if (--script_.Front().wait_ms == 0) script_.Pop();
      return true;
    case KeyItem::Kind::Abandon:
      script_.Pop();
      if (write_abandon_) write_abandon_(true);
      return true;
    case KeyItem::Kind::Key:
      break;
  }
  script_.Pop();
  if (!form_) return true;
  // Both events of one keystroke come inside the same DoEvents, as on the
  // platform; a handler that zeroes KeyCode does not stop the KeyPress.
  if (item.has_down) {
    Integer key_code = item.key_code;
    form_->RaiseKeyDown(key_code, item.shift);
  }
  if (item.has_press) {
    Integer key_ascii = item.key_ascii;
    form_->RaiseKeyPress(key_ascii);
  }
  return true;
}

TimerRef EventLoop::CreateTimer(std::function<void()> on_tick) {
  auto timer = std::make_shared<forms::Timer>(std::move(on_tick),
                                              [&clock = clock_] { return clock.Now(); });
  timers_.push_back(timer);
  return timer;
}

void EventLoop::FireDueTimers() {
  // Dropped timers leave the list only outside any tick, so that the walk
  // of an outer DoEvents keeps its place when a tick runs DoEvents.
  if (firing_depth_ == 0) std::erase_if(timers_, [](const auto& t) { return t.expired(); });
  ++firing_depth_;
  try {
    // By index: a tick may make a timer, which comes last.
    for (std::size_t i = 0; i < timers_.size(); ++i) {
      std::shared_ptr<forms::Timer> timer = timers_[i].lock();
      const std::int64_t now = clock_.Now();
      if (timer && timer->Due(now)) timer->Fire(now);
    }
  } catch (...) {
    --firing_depth_;
    throw;
  }
  --firing_depth_;
}

void EventLoop::BeginCall() {
  empty_ms_ = 0;
  if (starved_ && write_abandon_) write_abandon_(false);
  starved_ = false;
}

}  // namespace ferlan::headless
