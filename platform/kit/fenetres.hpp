// Fenetres: the foreground window, as the host keeps it in
// EnvState::active_window (a front-end sets it when its window gains or
// loses the focus).
#pragma once

#include <memory>

#include "ferlan/host.hpp"
#include "kit/kit.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::kit {

class Fenetres : public ferlan::Fenetres {
 public:
  explicit Fenetres(std::shared_ptr<EnvState> env) : env_(std::move(env)) {}

  Long Active() override { return env_->active_window; }

 private:
  std::shared_ptr<EnvState> env_;
};

}  // namespace ferlan::kit

FERLAN_PUBLIC_END
