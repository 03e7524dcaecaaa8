// Vertical rules between two lines of the grid, simple or double, always in
// the environment's black: no colour code applies to them.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

void KySaisie::TraceColonne(Integer Ld, Integer C, Integer Lf, const String& Mode) {
  ModuleState& st = State();
  // Exact comparison: "s" or "D " are unknown codes.
  if (Mode != u"D" && Mode != u"S") {
    st.Erreur->Message(u"Code de Tracé de Colonne <@" + Mode + u"@> Inconnu ", u"TraceColonne");
    return;
  }
  const Single x = WinCol(C);
  // From the top of line Ld to the top of line Lf, in whatever order.
  const Single y1 = WinLigne(Ld);
  const Single y2 = WinLigne(Lf);
  st.Dessin->LigneV(CurrentZone(st), x, y1, y2, st.Env->Noir());
  if (Mode == u"D") {
    // The second rule lies MargeX to the right; with MargeX 0 they coincide.
    const Single right = CSng(static_cast<Double>(x) + st.Env->MargeX());
    st.Dessin->LigneV(CurrentZone(st), right, y1, y2, st.Env->Noir());
  }
}

}  // namespace ferlan
