// Apartments: one module state per thread, current while its Apartment lives.
#include <memory>

#include "component/module_state.hpp"
#include "ferlan/assert.hpp"

namespace ferlan {

[[gnu::tls_model("initial-exec")]] thread_local Apartment::State* current_apartment_state = nullptr;

namespace {
// The state of a thread that calls before making an apartment of its own.
thread_local std::unique_ptr<Apartment::State> default_state;
}  // namespace

Apartment::State::State(ClassRegistry reg) : registry(std::move(reg)) {}
Apartment::State::~State() = default;

Apartment::Apartment(ClassRegistry registry)
    : state_(std::make_unique<State>(std::move(registry))), previous_(current_apartment_state) {
  current_apartment_state = state_.get();
}

Apartment::~Apartment() {
  // Apartments nest: the one that ends is the innermost, current one.
  FERLAN_ASSERT(current_apartment_state == state_.get());
  current_apartment_state = previous_;
}

bool Apartment::VirtualKeysPending() const { return state_->ClavierTampon != u"[]"; }

ModuleState& DefaultState() {
  if (!default_state) default_state = std::make_unique<Apartment::State>(ClassRegistry{});
  return *default_state;
}

void ThrowObjectNotSet() { throw PlatformError::ObjectNotSet(); }

PictureBoxRef CurrentZoneRef(ModuleState& st) {
  PictureBoxRef zone = st.Env->ZoneAff();
  if (!zone) ThrowObjectNotSet();
  return zone;
}

}  // namespace ferlan
