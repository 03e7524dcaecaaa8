// Pile: a last-in-first-out stack of Variant values.
#pragma once

#include <vector>

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::kit {

class Pile : public ferlan::Pile {
 public:
  void Empile(Variant V) override;
  // Pops into V, converted to the type V holds on entry by the platform's
  // coercions (an Empty V takes the value as it is). On an empty stack V is
  // left unchanged.
  void Depile(Variant& V) override;

  std::size_t Depth() const { return values_.size(); }

 private:
  std::vector<Variant> values_;
};

}  // namespace ferlan::kit

FERLAN_PUBLIC_END
