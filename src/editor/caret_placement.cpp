#include "editor/caret_placement.hpp"

#include "editor/caret_form.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

void PlaceAndStartCaret(EditState& e) {
  ModuleState& st = e.st;
  KySaisie ky;
  CaretForm& form = FeuilleCaret(st);
  // The timers first; no tick can come before the wait.
  form.TimerCaretCligote->SetEnabled(true);
  form.TimerCaretCligote->SetInterval(500);
  form.TimerCaret->SetEnabled(true);
  form.TimerCaret->SetInterval(1);
  // The character that gives the width comes from CH, not TexteVu: on a
  // scrolled field it is not the character under the caret, and behind an
  // "I" mask it is the hidden character.
  String car_caret = Mid(e.CH, SubInt(e.P, e.Decal), 1);
  if (car_caret == u" ") car_caret = u"A";
  // Left: CT and the text left of the caret; Single + Single stays Single
  // before the rounding.
  e.LeftOfCaret.assign(LeftView(e.TexteVu, SubInt(SubInt(e.P, 1), e.Decal)));
  const Single left_of_caret = ky.LargeurTexte(e.LeftOfCaret);
  st.PosCaretX = CLng(static_cast<Single>(e.CT + left_of_caret));
  // On another surface, its place and CaretX; Long + Single is worked in
  // Double.
  if (e.AvecSubst) {
    st.PosCaretX = CLng(static_cast<Double>(st.PosCaretX) + e.KyFSubst->Left() + e.CaretX);
  }
  // Top: under the letters, not beside them.
  st.PosCaretY = CLng(e.LT + static_cast<Double>(ky.HauteurTexte()) * 0.85);
  if (e.AvecSubst) {
    st.PosCaretY = CLng(static_cast<Double>(st.PosCaretY) + e.KyFSubst->Top() + e.CaretY);
  }
  // As wide as a letter.
  CachedCaretControl(st).SetWidth(ky.LargeurTexte(car_caret));
}

}  // namespace ferlan
