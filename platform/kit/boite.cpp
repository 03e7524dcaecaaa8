#include "kit/boite.hpp"

namespace ferlan::kit {

String Boite::Message(const String& Style, const String& Titre, const String& Texte,
                      const String& /*Complement*/, Long /*Code*/) {
  records_->Keep(records_->boxes, BoxReport{Style, Titre, Texte});
  return {};
}

void Boite::BlocMes(PictureBox& /*Zone*/, const String& M, Long L) {
  records_->Keep(records_->blocs, BlocReport{M, L});
}

}  // namespace ferlan::kit
