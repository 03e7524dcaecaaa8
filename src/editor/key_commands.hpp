// The commands of the field editor: once per pass Modif has Code and R from
// the key and carries out the first row of the command table that fits.
#pragma once

#include "editor/edit_state.hpp"

namespace ferlan {

// The dispatch on e.Code, in the order of the table. May change CH, P, LU,
// Insertion, and may set TR and Fin.
void CarryOutKey(EditState& e);

// Code 0: the character in R, typed at P.
void TypeCharacter(EditState& e);
// Ctrl+C: the rest of the field from P to the clipboard, and a message box.
void CopyRest(EditState& e);
// Ctrl+V: the clipboard's text at P, inserted or overwriting; cut to LC.
void Paste(EditState& e);
// Ctrl+Right / Ctrl+Left: to the start of the next / this or the previous
// word. With no such word the caret stays.
void WordRight(EditState& e);
void WordLeft(EditState& e);

}  // namespace ferlan
