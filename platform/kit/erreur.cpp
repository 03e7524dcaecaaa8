#include "kit/erreur.hpp"

namespace ferlan::kit {

void Erreur::Message(const String& Mes, const String& Source) {
  records_->reports.push_back({Source, Mes, std::nullopt});
}

void Erreur::Code(Long N) { records_->reports.push_back({{}, {}, N}); }

}  // namespace ferlan::kit
