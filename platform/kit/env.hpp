// The environment object: a view of the host's shared EnvState, with typed
// members for the component and late-bound members by name for hosts and
// tools ("Env.ToucheEntree").
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "ferlan/host.hpp"
#include "kit/kit.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::kit {

class Env : public ferlan::Env {
 public:
  explicit Env(std::shared_ptr<EnvState> state);

  // Every member below by name, case-insensitive; 438 for any other name.
  Variant GetProperty(std::string_view name) override;
  void SetProperty(std::string_view name, const Variant& value) override;

  FormRef KyF() override { return state_->form; }
  PictureBoxRef ZoneAff() override { return state_->surface; }
  Form* KyFView() override { return state_->form.get(); }
  PictureBox* ZoneAffView() override { return state_->surface.get(); }
  void SetZoneAff(PictureBoxRef zone) override { state_->surface = std::move(zone); }
#define FERLAN_ENV_ACCESSORS(type, name, access, initial)                          \
  FERLAN_ENV_IF_GET_##access(type name() override { return state_->name; })    \
  FERLAN_ENV_IF_SET_##access(void Set##name(type v) override { state_->name = v; })
  FERLAN_ENV_MEMBERS(FERLAN_ENV_ACCESSORS)
#undef FERLAN_ENV_ACCESSORS

 private:
  std::shared_ptr<EnvState> state_;
};

// The names GetProperty and SetProperty know, in the spelling of the table.
std::vector<std::string_view> EnvPropertyNames();

}  // namespace ferlan::kit

FERLAN_PUBLIC_END
