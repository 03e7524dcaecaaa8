#include "window/event_loop.hpp"

#include <SDL.h>

#include <algorithm>
#include <optional>

#include "window/key_map.hpp"

namespace ferlan::window {

namespace {

headless::KeyItem Keystroke(Integer vk, Integer mask) {
  headless::KeyItem item;
  item.has_down = true;
  item.key_code = vk;
  item.shift = mask;
  return item;
}

}  // namespace

EventLoop::EventLoop() : start_(std::chrono::steady_clock::now()) {}

EventLoop::~EventLoop() {
  for (const TimerEntry& entry : timers_) {
    if (const auto timer = entry.timer.lock()) timer->Orphan();
  }
}

std::int64_t EventLoop::Now() const {
  return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() -
                                                               start_)
      .count();
}

void EventLoop::DoEvents() {
  // What the host drew since the last DoEvents is news to the polling
  // timers: they tick at once, so that their effect (the caret following
  // the text) shows in the same frame.
  const bool news = changed_ && changed_();
  if (news) Unpark();
  Pump();
  const bool key = DeliverOne();
  bool acted = FireDueTimers(news || key) || key;
  Present();
  // Virtual keys waiting in the component are read one a DoEvents: no sleep
  // may hold them back.
  const bool caller_busy = !CallerIdle(true);
  if (!acted && keys_.empty() && !caller_busy && idle_turns_++ > 0) {
    const std::int64_t budget = SleepBudget();
    if (budget > 0) {
      SDL_Event event;
      ++sleeps_;
      if (SDL_WaitEventTimeout(&event, static_cast<int>(budget)) != 0) Handle(event);
      Pump();
      const bool woken_key = DeliverOne();
      acted = FireDueTimers(woken_key) || woken_key;
      Present();
    }
  }
  if (acted) idle_turns_ = 0;
  if (closed_ && write_abandon_) write_abandon_(true);
}

bool EventLoop::Present() { return present_ && present_(); }

void EventLoop::Unpark() {
  for (TimerEntry& entry : timers_) entry.parked = false;
}

void EventLoop::Pump() {
  SDL_Event event;
  while (SDL_PollEvent(&event) != 0) Handle(event);
}

void EventLoop::Handle(const SDL_Event& event) {
  switch (event.type) {
    case SDL_QUIT:
      Close();
      return;
    case SDL_KEYDOWN: {
      if (keys_.size() >= kMostPendingKeys) {
        ++dropped_keys_;
        next_text_ = NextText::kDropped;
        return;
      }
      const Integer mask = ShiftMaskOf(event.key.keysym.mod);
      auto vk = VirtualKeyOf(event.key.keysym.sym, event.key.keysym.scancode);
      if (vk && (event.key.keysym.mod & KMOD_NUM) == 0) vk = KeypadKeyWithoutNumLock(*vk);
      if (!vk) {
        // A key the platform has no number for: what it types comes as
        // characters of their own.
        next_text_ = NextText::kOwnKey;
        return;
      }
      headless::KeyItem item = Keystroke(*vk, mask);
      if (const auto press = ControlKeyPress(*vk, mask)) {
        item.has_press = true;
        item.key_ascii = *press;
      }
      keys_.push_back(item);
      if (!TextReachesKeyPress(mask)) {
        next_text_ = NextText::kDropped;
      } else {
        next_text_ = item.has_press ? NextText::kOwnKey : NextText::kJoinsKey;
      }
      return;
    }
    case SDL_TEXTINPUT: {
      const bool joins_key = next_text_ == NextText::kJoinsKey && !keys_.empty();
      const bool dropped = next_text_ == NextText::kDropped;
      next_text_ = NextText::kOwnKey;
      if (dropped) return;
      bool first = true;
      for (const Integer code : KeyPressCodesOf(event.text.text)) {
        if (first && joins_key) {
          keys_.back().has_press = true;
          keys_.back().key_ascii = code;
        } else {
          // Text with no key of its own (an input method, a second
          // character): the platform's packet key carries it.
          if (keys_.size() >= kMostPendingKeys) {
            ++dropped_keys_;
            continue;
          }
          headless::KeyItem item = Keystroke(headless::kPacketKey, 0);
          item.has_press = true;
          item.key_ascii = code;
          keys_.push_back(item);
        }
        first = false;
      }
      return;
    }
    case SDL_WINDOWEVENT:
      if (event.window.event == SDL_WINDOWEVENT_CLOSE) {
        Close();
        return;
      }
      next_text_ = NextText::kOwnKey;
      idle_turns_ = 0;
      Unpark();
      if (window_events_) window_events_(event);
      return;
    case SDL_SYSWMEVENT:
      if (window_events_) window_events_(event);
      return;
    default:
      return;
  }
}

void EventLoop::ForgetSession() {
  forms::EventLoop::ForgetSession();
  form_.reset();
  script_ = nullptr;
  script_wait_until_ = -1;
  write_abandon_ = nullptr;
}

void EventLoop::Close() {
  closed_ = true;
  keys_.clear();
  if (write_abandon_) write_abandon_(true);
}

bool EventLoop::DeliverOne() {
  if (keys_.empty()) return DeliverScriptItem();
  // Copied out: a handler may run DoEvents and so move the queue.
  const headless::KeyItem item = keys_.front();
  keys_.pop_front();
  if (keys_.empty() && next_text_ == NextText::kJoinsKey) next_text_ = NextText::kOwnKey;
  Unpark();
  if (!form_) return true;
  // A handler that zeroes KeyCode does not stop the KeyPress.
  Integer key_code = item.key_code;
  form_->RaiseKeyDown(key_code, item.shift);
  if (item.has_press) {
    Integer key_ascii = item.key_ascii;
    form_->RaiseKeyPress(key_ascii);
  }
  return true;
}

bool EventLoop::DeliverScriptItem() {
  if (script_ == nullptr || script_->Empty() || closed_) return false;
  headless::KeyItem& front = script_->Front();
  if (front.kind == headless::KeyItem::Kind::Wait) {
    const std::int64_t now = Now();
    if (script_wait_until_ < 0) script_wait_until_ = now + front.wait_ms;
    if (now < script_wait_until_) return false;
    script_wait_until_ = -1;
    script_->Pop();
    return true;
  }
  const headless::KeyItem item = front;
  script_->Pop();
  if (item.kind == headless::KeyItem::Kind::Abandon) {
    if (write_abandon_) write_abandon_(true);
    return true;
  }
  keys_.push_back(item);
  next_text_ = NextText::kOwnKey;
  return DeliverOne();
}

TimerRef EventLoop::CreateTimer(std::function<void()> on_tick) {
  auto timer = std::make_shared<forms::Timer>(std::move(on_tick), [this] { return Now(); });
  timers_.push_back({timer});
  return timer;
}

bool EventLoop::FireDueTimers(bool news) {
  // Dropped timers leave the list only outside any tick, so that the walk
  // of an outer DoEvents keeps its place when a tick runs DoEvents.
  if (firing_depth_ == 0) {
    std::erase_if(timers_, [](const TimerEntry& t) { return t.timer.expired(); });
  }
  bool fired = false;
  ++firing_depth_;
  try {
    // By index: a tick may make a timer, which comes last.
    for (std::size_t i = 0; i < timers_.size(); ++i) {
      std::shared_ptr<forms::Timer> timer = timers_[i].timer.lock();
      const std::int64_t now = Now();
      if (!timer) continue;
      const bool polling = timer->Interval() < kTimerResolutionMs;
      // News makes a running polling timer tick at once, whatever its pace.
      const bool at_once = polling && news && timer->NextDue().has_value();
      if (!at_once && (!timer->Due(now) || now - timers_[i].last_fired < kTimerResolutionMs)) {
        continue;
      }
      timers_[i].last_fired = now;
      fired = true;
      if (polling) {
        // It has seen everything done so far; what comes later wakes it.
        timers_[i].parked = true;
        timer->Fire(now);
      } else {
        timer->Fire(now);
        // This tick may have changed what the polling timers look at.
        Unpark();
      }
    }
  } catch (...) {
    --firing_depth_;
    throw;
  }
  --firing_depth_;
  return fired;
}

std::int64_t EventLoop::SleepBudget() {
  const std::int64_t now = Now();
  std::int64_t next = now + kLongestSleepMs;
  for (const TimerEntry& entry : timers_) {
    const std::shared_ptr<forms::Timer> timer = entry.timer.lock();
    if (!timer || entry.parked) continue;
    const std::optional<std::int64_t> due = timer->NextDue();
    if (!due) continue;
    next = std::min(next, std::max(*due, entry.last_fired + kTimerResolutionMs));
  }
  if (script_ != nullptr && !script_->Empty() && !closed_) {
    if (script_->Front().kind != headless::KeyItem::Kind::Wait) return 0;
    if (script_wait_until_ >= 0)
      next = std::min(next, script_wait_until_);
    else
      return 0;
  }
  return std::max<std::int64_t>(0, next - now);
}

}  // namespace ferlan::window
