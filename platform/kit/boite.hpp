// Boite: message boxes and message blocks. Headless by nature: it records
// what it was given in Records and returns at once, as if the user had
// closed the box; Message gives "".
#pragma once

#include <memory>

#include "ferlan/host.hpp"
#include "kit/kit.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::kit {

class Boite : public ferlan::Boite {
 public:
  explicit Boite(std::shared_ptr<Records> records) : records_(std::move(records)) {}

  String Message(const String& Style, const String& Titre, const String& Texte,
                 const String& Complement, Long Code) override;
  void BlocMes(PictureBox& Zone, const String& M, Long L) override;

 private:
  std::shared_ptr<Records> records_;
};

}  // namespace ferlan::kit

FERLAN_PUBLIC_END
