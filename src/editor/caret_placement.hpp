// Placing and starting the caret before each wait for a key.
#pragma once

#include "editor/edit_state.hpp"

namespace ferlan {

// Starts both timers, then computes PosCaretX and PosCaretY under the
// character at P and gives the caret that character's width (a blank counts
// as "A"). The timers tick only inside DoEvents, so starting them before the
// position is computed is harmless.
void PlaceAndStartCaret(EditState& e);

}  // namespace ferlan
