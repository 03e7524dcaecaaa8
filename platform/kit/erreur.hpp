// Erreur: the error reporter. It records each report in Records and returns
// at once; the host shows them as it likes.
#pragma once

#include <memory>

#include "ferlan/host.hpp"
#include "kit/kit.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::kit {

class Erreur : public ferlan::Erreur {
 public:
  explicit Erreur(std::shared_ptr<Records> records) : records_(std::move(records)) {}

  void Message(const String& Mes, const String& Source) override;
  void Code(Long N) override;

 private:
  std::shared_ptr<Records> records_;
};

}  // namespace ferlan::kit

FERLAN_PUBLIC_END
