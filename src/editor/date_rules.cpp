// Date rules D1, D2, D4 and D5. D3 (no blanking by the first key) lives in
// the typed character, D6 (separators back after a cut) in FormatDate.
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
