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
        if constexpr (std::is_same_v<T, Integer>) {
          return VariantToInteger(top);
        } else if constexpr (std::is_same_v<T, Long>) {
          return VariantToLong(top);
        } else if constexpr (std::is_same_v<T, Single>) {
          return VariantToSingle(top);
        } else if constexpr (std::is_same_v<T, Double>) {
          return VariantToDouble(top);
        } else if constexpr (std::is_same_v<T, Boolean>) {
          return VariantToBoolean(top);
        } else if constexpr (std::is_same_v<T, String>) {
          return VariantToString(top);
        } else if constexpr (std::is_same_v<T, ObjectRef>) {
          return VariantToObject(top);
        } else {
          return top;
        }
      },
      V);
}

}  // namespace ferlan::kit
