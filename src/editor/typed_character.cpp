#include "editor/field_kinds.hpp"
#include "editor/key_commands.hpp"

namespace ferlan {

void TypeCharacter(EditState& e) {
  // Replace on first key: a new value typed over the old one, unless the
  // mode keeps the text ("P", "E") or the field is a date.
  if (e.IMS != u"P" && e.IMS != u"E" && e.Premier && e.P == 1 && !IsDateField(e)) {
    e.CH = Space(e.LC);
    BlankZone(e);
    // LU is left as it was: End may then go past the new text.
  }
  // Store. Date and yes/no fields always overwrite.
  if (!IsDateField(e) && !IsYesNoField(e) && e.st.Insertion) {
    // The last character falls off the end.
    e.CH = Left(e.CH, SubInt(e.P, 1)) + e.R + Mid(e.CH, e.P, SubInt(e.LC, e.P));
    if (e.LU < e.LC) e.LU = AddInt(e.LU, 1);
  } else {
    MidAssign(e.CH, e.P, 1, e.R);
  }
  if (e.LU < e.P) e.LU = e.P;
  if (IsYesNoField(e)) AnswerYesNo(e);
  // Advance; at the last position the caret stays. A yes/no field brings
  // it back to 1 instead, so a wrong character is replaced by the next.
  if (e.P < e.LC) e.P = IsYesNoField(e) ? Integer{1} : AddInt(e.P, 1);
}

}  // namespace ferlan
