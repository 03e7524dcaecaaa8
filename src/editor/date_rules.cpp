// The rules of a date field. Two more live elsewhere: the first key doesn't
// blank a date (typed_character.cpp), and the separators come back after a
// cut (FormatDate).
#include "editor/field_kinds.hpp"

namespace ferlan {

Boolean IsDateField(const EditState& e) { return e.TV == u"D"; }

Boolean DateSeparatorDue(const EditState& e) { return IsDateField(e) && (e.P == 3 || e.P == 6); }

void SkipDateSeparator(EditState& e, Integer direction) {
  if (IsDateField(e) && (e.P == 3 || e.P == 6)) e.P = AddInt(e.P, direction);
}

Boolean InsertKeyMayTurnOn(const EditState& e) { return !IsDateField(e); }

Boolean DeleteAllowed(const EditState& e) { return !IsDateField(e) || e.P > 6; }

}  // namespace ferlan
