// The answer of a yes/no field. Its other two rules, no insertion and the
// caret back on 1, are steps of the typed character.
#include "editor/field_kinds.hpp"

namespace ferlan {

Boolean IsYesNoField(const EditState& e) { return e.TV == u"B"; }

void AnswerYesNo(EditState& e) {
  if (e.P != 1) return;
  if (e.R == u"O" || e.R == u"o") {
    e.CH = u"OUI";
  } else if (e.R == u"N" || e.R == u"n") {
    e.CH = u"NON";
  } else {
    return;  // any other character stays at position 1 and the edit goes on
  }
  // CH now has three characters whatever LC is; only the end of the edit
  // sees it, and draws at most NbVis of them.
  e.TR = e.st.Env->ToucheEntree();
  e.Fin = true;
}

}  // namespace ferlan
