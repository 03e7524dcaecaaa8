// A field of the current entry screen by its identifier.
#pragma once

#include "component/module_state.hpp"

namespace ferlan::screens {

// The record RechRub finds for `I`, starting from record 0: an unknown
// identifier, once reported, gives the never-filled record 0, whose texts
// read as blanks and numbers as zeros.
RubRecord& FieldRecord(ModuleState& st, const String& I);

}  // namespace ferlan::screens
