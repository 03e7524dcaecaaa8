// The two special kinds of field, chosen by TV and compared exactly. The
// named rules are the whole difference between them and a text field.
#pragma once

#include "editor/edit_state.hpp"

namespace ferlan {

// ---------------------------------------------------------------------------
// Date field, TV "D": "/" at positions 3 and 6, never typed by the user.
// ---------------------------------------------------------------------------
Boolean IsDateField(const EditState& e);
// Separators type themselves: at position 3 or 6 no key is read; "/" is typed for the user.
Boolean DateSeparatorDue(const EditState& e);
// Arrows skip the separators: after an arrow has moved P onto a separator, one more step the same
// way (direction -1 or +1).
void SkipDateSeparator(EditState& e, Integer direction);
// No insertion: the Insert key can turn Insertion off but never on in a date field.
Boolean InsertKeyMayTurnOn(const EditState& e);
// Delete works only behind the second separator.
Boolean DeleteAllowed(const EditState& e);

// ---------------------------------------------------------------------------
// Yes/no field, TV "B": the answer "OUI" or "NON" ends the field.
// ---------------------------------------------------------------------------
Boolean IsYesNoField(const EditState& e);
// The answer ends the field: after a character has been stored at position 1, O/o answers "OUI" and
// N/n "NON"; the edit ends as if validated.
void AnswerYesNo(EditState& e);

}  // namespace ferlan
