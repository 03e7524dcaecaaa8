// Aide: on-line help. Records the topic asked for and returns at once.
#pragma once

#include <memory>

#include "ferlan/host.hpp"
#include "kit/kit.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::kit {

class Aide : public ferlan::Aide {
 public:
  explicit Aide(std::shared_ptr<Records> records) : records_(std::move(records)) {}

  void Affiche(const String& Sujet) override { records_->Keep(records_->help, String(Sujet)); }

 private:
  std::shared_ptr<Records> records_;
};

}  // namespace ferlan::kit

FERLAN_PUBLIC_END
