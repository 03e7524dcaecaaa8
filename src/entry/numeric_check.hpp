// The check of a numeric entry: francs suffix, roots of automatic numbers,
// plain number within the letter's range, or else an expression for the
// calculator. Private to typed entry.
#pragma once

#include "component/module_state.hpp"
#include "ferlan/runtime.hpp"

namespace ferlan::entry {

// What the check left in the field.
enum class NumericOutcome {
  Checked,   // Env.SaisieOK says whether M is acceptable; M is untouched
  Computed,  // the calculator's result now stands in M, to be confirmed
};

// Checks the text M of a numeric field of letter T with ND decimals.
// Writes its verdict to Env.SaisieOK at each step, as the entry loop reads
// it there. The caller's LRacAutoNb is not changed.
NumericOutcome CheckNumeric(ModuleState& st, String& M, const String& T, Integer ND,
                            const String& LRacAutoNb);

}  // namespace ferlan::entry
