// Apartments: one module state per thread, current while its Apartment lives.
#include <memory>

#include "component/module_state.hpp"
#include "ferlan/assert.hpp"

namespace ferlan {

namespace {
// Read at nearly every call: the initial-exec model reaches it without a call
// to the dynamic loader, at the cost of one pointer of static TLS.
[[gnu::tls_model("initial-exec")]] thread_local Apartment::State* current_state = nullptr;
// The state of a thread that calls before making an apartment of its own.
thread_local std::unique_ptr<Apartment::State> default_state;
}  // namespace

Apartment::State::State(ClassRegistry reg) : registry(std::move(reg)) {}
Apartment::State::~State() = default;

Apartment::Apartment(ClassRegistry registry)
    : state_(std::make_unique<State>(std::move(registry))), previous_(current_state) {
  current_state = state_.get();
}

Apartment::~Apartment() {
  // Apartments nest: the one that ends is the innermost, current one.
  FERLAN_ASSERT(current_state == state_.get());
  current_state = previous_;
}

bool Apartment::VirtualKeysPending() const { return state_->ClavierTampon != u"[]"; }

ModuleState& State() {
  if (current_state) return *current_state;
  if (!default_state) default_state = std::make_unique<Apartment::State>(ClassRegistry{});
  return *default_state;
}

Form& CurrentForm(ModuleState& st) {
  Form* form = st.Env->KyFView();
  if (!form) throw PlatformError::ObjectNotSet();
  return *form;
}

PictureBoxRef CurrentZoneRef(ModuleState& st) {
  PictureBoxRef zone = st.Env->ZoneAff();
  if (!zone) throw PlatformError::ObjectNotSet();
  return zone;
}

PictureBox& CurrentZone(ModuleState& st) {
  PictureBox* zone = st.Env->ZoneAffView();
  if (!zone) throw PlatformError::ObjectNotSet();
  return *zone;
}

}  // namespace ferlan
