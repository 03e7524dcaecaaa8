// The record table of the current entry screen, as the screens subsystem
// reaches it: one record by number, checked as the platform checks the
// bounds of a fixed array, and the line test that the layout passes share.
#pragma once

#include "component/module_state.hpp"

namespace ferlan::screens {

// Records are numbered 1 to 40; element 0 exists and is never filled.
inline constexpr Long kLastRub = 40;

// Record `i`; outside 0 to 40 raises 9.
RubRecord& RubAt(ModuleState& st, Long i);

// MemeLigne: record `i` is not the first and sits on the line of the record
// before it. Worked out anew wherever it is needed, never stored.
Boolean MemeLigne(ModuleState& st, Long i);

}  // namespace ferlan::screens
