#include "kit/pile.hpp"

#include <type_traits>

namespace ferlan::kit {

void Pile::Empile(Variant V) { values_.push_back(std::move(V)); }

void Pile::Depile(Variant& V) {
  if (values_.empty()) return;
  Variant top = std::move(values_.back());
  values_.pop_back();
  V = std::visit(
      [&top](const auto& target) -> Variant {
        using T = std::decay_t<decltype(target)>;
        if constexpr (std::is_same_v<T, Empty>) {
          return top;  // an Empty variable takes the value as it is
        } else {
          return VariantTo<T>(top);
        }
      },
      V);
}

}  // namespace ferlan::kit
