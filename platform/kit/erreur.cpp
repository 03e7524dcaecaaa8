#include "kit/erreur.hpp"

namespace ferlan::kit {

void Erreur::Message(const String& Mes, const String& Source) {
  records_->Keep(records_->reports, ErrorReport{Source, Mes, std::nullopt});
}

void Erreur::Code(Long N) { records_->Keep(records_->reports, ErrorReport{{}, {}, N}); }

}  // namespace ferlan::kit
