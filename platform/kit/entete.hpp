// Entete: the text of the caption between " - " and " -  Code Ent ", which
// the host keeps in EnvState::EnteteTexte.
#pragma once

#include <memory>

#include "ferlan/host.hpp"
#include "kit/kit.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::kit {

class Entete : public ferlan::Entete {
 public:
  explicit Entete(std::shared_ptr<EnvState> env) : env_(std::move(env)) {}

  String Texte() override { return env_->EnteteTexte; }

 private:
  std::shared_ptr<EnvState> env_;
};

}  // namespace ferlan::kit

FERLAN_PUBLIC_END
