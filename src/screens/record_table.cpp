// Access to the record table by number.
#include "screens/record_table.hpp"

namespace ferlan::screens {

RubRecord& RubAt(ModuleState& st, Long i) {
  if (i < 0 || i > kLastRub) throw PlatformError::SubscriptOutOfRange();
  return st.Rub[static_cast<std::size_t>(i)];
}

Boolean MemeLigne(ModuleState& st, Long i) {
  if (i <= 1) return false;
  return RubAt(st, i).L == RubAt(st, i - 1).L;
}

}  // namespace ferlan::screens
