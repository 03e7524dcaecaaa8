// The kit's classes by name. Each creation makes a new object; the ones that
// show shared state (Env, Entete, Fenetres, the reporters) all view the
// session's EnvState and Records.
#include <memory>

#include "kit/aide.hpp"
#include "kit/boite.hpp"
#include "kit/calcul.hpp"
#include "kit/chaines.hpp"
#include "kit/conv.hpp"
#include "kit/dates.hpp"
#include "kit/dessin.hpp"
#include "kit/entete.hpp"
#include "kit/env.hpp"
#include "kit/erreur.hpp"
#include "kit/fenetres.hpp"
#include "kit/kit.hpp"
#include "kit/pile.hpp"

namespace ferlan::kit {

void RegisterKit(ClassRegistry& registry, std::shared_ptr<EnvState> env,
                 std::shared_ptr<Records> records, std::shared_ptr<Global> global) {
  registry.Register("Env", [env] { return std::make_shared<Env>(env); });
  registry.Register("Chaines", [] { return std::make_shared<Chaines>(); });
  registry.Register("Conv", [] { return std::make_shared<Conv>(); });
  registry.Register("Erreur", [records] { return std::make_shared<Erreur>(records); });
  registry.Register("Dessin", [env, global] { return std::make_shared<Dessin>(env, global); });
  registry.Register("Pile", [] { return std::make_shared<Pile>(); });
  registry.Register("Boite", [records] { return std::make_shared<Boite>(records); });
  registry.Register("Aide", [records] { return std::make_shared<Aide>(records); });
  registry.Register("Entete", [env] { return std::make_shared<Entete>(env); });
  registry.Register("Calcul", [] { return std::make_shared<Calcul>(); });
  registry.Register("Dates", [] { return std::make_shared<Dates>(); });
  registry.Register("Fenetres", [env] { return std::make_shared<Fenetres>(env); });
}

}  // namespace ferlan::kit
