#include "kit/boite.hpp"

namespace ferlan::kit {

String Boite::Message(const String& Style, const String& Titre, const String& Texte,
                      const String& /*Complement*/, Long /*Code*/) {
  records_->boxes.push_back({Style, Titre, Texte});
  return {};
}

void Boite::BlocMes(PictureBox& /*Zone*/, const String& M, Long L) {
  records_->blocs.push_back({M, L});
}

}  // namespace ferlan::kit
