#include "forms/timer.hpp"

#include "forms/property_table.hpp"

namespace ferlan::forms {

namespace {
const PropertyTable<Timer>& Properties() {
  static const PropertyTable<Timer> table{
      {"Enabled", [](Timer& t) -> Variant { return t.Enabled(); },
       [](Timer& t, const Variant& v) { t.SetEnabled(VariantToBoolean(v)); }},
      {"Interval", [](Timer& t) -> Variant { return t.Interval(); },
       [](Timer& t, const Variant& v) { t.SetInterval(VariantToLong(v)); }},
  };
  return table;
}
}  // namespace

Timer::Timer(std::function<void()> on_tick, Clock now)
    : on_tick_(std::move(on_tick)), now_(std::move(now)), started_at_(now_()) {}

void Timer::SetEnabled(Boolean v) {
  enabled_ = v;
  started_at_ = now_();
}

void Timer::SetInterval(Long v) {
  if (v < 0) throw PlatformError::InvalidCall("negative Interval");
  interval_ = v;
  started_at_ = now_();
}

bool Timer::Due(std::int64_t now) const {
  return enabled_ && interval_ > 0 && !in_tick_ && now - started_at_ >= interval_;
}

std::optional<std::int64_t> Timer::NextDue() const {
  if (!enabled_ || interval_ <= 0 || in_tick_) return std::nullopt;
  return started_at_ + interval_;
}

void Timer::Fire(std::int64_t now) {
  started_at_ = now;
  if (!on_tick_) return;
  in_tick_ = true;
  try {
    on_tick_();
  } catch (...) {
    in_tick_ = false;
    throw;
  }
  in_tick_ = false;
}

void Timer::Orphan() {
  now_ = [] { return std::int64_t{0}; };
  on_tick_ = nullptr;
  started_at_ = 0;
}

Variant Timer::GetProperty(std::string_view name) { return Properties().Get(*this, name); }

void Timer::SetProperty(std::string_view name, const Variant& value) {
  Properties().Set(*this, name, value);
}

}  // namespace ferlan::forms
