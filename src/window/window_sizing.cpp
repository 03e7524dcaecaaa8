// Preparing the form, sizing the surface in lines and columns, and making
// room on demand. Sizes are read on the host's objects at each use and never
// kept; only Dessin.Hauteur and Dessin.Largeur change the surface here.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

void KySaisie::InitKyF() {
  ModuleState& st = State();
  // Keys reach the form before the focused control; the key pipeline counts
  // on the host forwarding them from there.
  CurrentForm(st).SetKeyPreview(true);
  CurrentForm(st).SetBorderStyle(2);
  CurrentZone(st).Font().SetBold(true);
  Single size = 0;
  if (st.Env->TaillePolice() == 0) {
    size = st.Dessin->TaillePolice(CurrentZone(st));
  } else {
    size = st.Env->TaillePolice();
  }
  CurrentZone(st).Font().SetSize(size);
}

void KySaisie::DimensionFeuille(Integer H, Integer L) {
  const Single usable = KySaisie{}.WinCol(L);
  KySaisie{}.DimensionFeuilleLT(H, L == -1 ? Single{-1} : usable, false);
}

void KySaisie::DimensionFeuilleLT(Integer H, Single L, Boolean QueSiInf) {
  ModuleState& st = State();
  const PictureBoxRef high_zone = CurrentZoneRef(st);
  st.Dessin->Hauteur(*high_zone, KySaisie{}.WinLigne(H), QueSiInf);
  if (L != -1) {
    // Two columns of margin on each side: 80 usable columns make 84.
    const PictureBoxRef wide_zone = CurrentZoneRef(st);
    const Double width = static_cast<Double>(KySaisie{}.WinCol(2)) + static_cast<Double>(L) +
                         static_cast<Double>(KySaisie{}.WinCol(2));
    st.Dessin->Largeur(*wide_zone, CSng(width), QueSiInf);
  }
  // Always, also when the size did not change.
  KySaisie{}.Centrage(CurrentZoneRef(st), 0);
}

Long KySaisie::EspaceFeuille(Long L, Long H) {
  ModuleState& st = State();
  Boolean changed = false;
  if (static_cast<Double>(L) > CurrentZone(st).ScaleWidth()) {
    // Exactly L, with no margin, unlike DimensionFeuilleLT.
    st.Dessin->Largeur(CurrentZone(st), static_cast<Single>(L), false);
    changed = true;
  }
  Long line = 0;
  KySaisie{}.PosAff(&line);
  if (static_cast<Double>(KySaisie{}.WinLigne(static_cast<Single>(line))) + H >
      CurrentZone(st).ScaleHeight()) {
    const PictureBoxRef zone = CurrentZoneRef(st);
    const Single height =
        CSng(static_cast<Double>(KySaisie{}.WinLigne(static_cast<Single>(line))) + H);
    st.Dessin->Hauteur(*zone, height, false);
    changed = true;
  }
  if (changed) KySaisie{}.Centrage(CurrentZoneRef(st), 0);
  return line;
}

}  // namespace ferlan
