// The rubber of the grid: clearing a line to the right edge, the inside of an
// entry box, and the whole surface (the form feed). Aff clears only the box of
// its own text; these are the only calls that clear to the end of a line.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

void KySaisie::EffaceLigneColT(Integer L, Single CT) {
  ModuleState& st = State();
  PictureBox& zone = CurrentZone(st);
  const Single top = KySaisie{}.WinLigne(L);
  const Single right = CurrentZone(st).ScaleWidth();
  // One text height, not one pitch: the gap below the text is left alone,
  // and so is whatever a larger run or a block drew there.
  const Single bottom = CSng(static_cast<Double>(KySaisie{}.WinLigne(L)) +
                             static_cast<Double>(KySaisie{}.HauteurTexte()));
  st.Dessin->EffaceRect(zone, CT, top, right, bottom, -1);
}

void KySaisie::EffaceLigne(Integer L, Integer C) {
  // The default column 1 leaves column 0, the left margin, standing.
  KySaisie{}.EffaceLigneColT(L, KySaisie{}.WinCol(C));
}

void KySaisie::EffaceLignes(Integer Ld, Integer Lf) {
  for (int line = Ld; line <= Lf; ++line) {
    KySaisie{}.EffaceLigne(static_cast<Integer>(line), 1);
  }
}

void KySaisie::EffaceZoneSaisie(Single LT, Single CzT, Single LzT, Long Coul, PictureBoxRef A) {
  ModuleState& st = State();
  PictureBoxRef zone = A ? A : CurrentZoneRef(st);
  const Single left = CSng(static_cast<Double>(CzT) + MulInt(2, st.Env->MargeX()));
  const Single top = LT;
  const Single right = CSng(static_cast<Double>(CzT) + static_cast<Double>(LzT) -
                            MulInt(3, st.Env->MargeX()));
  // The height is that of Env.ZoneAff's font even when another surface is
  // given: entry boxes are laid out on the grid of the main surface.
  const Single bottom =
      CSng(static_cast<Double>(LT) + KySaisie{}.HauteurTexte() - st.Env->MargeY());
  st.Dessin->EffaceRect(*zone, left, top, right, bottom, Coul);
}

void KySaisie::EffaceEcran(Boolean RéductionFeuille) {
  ModuleState& st = State();
  st.Dessin->Efface(CurrentZone(st));
  if (RéductionFeuille) st.Dessin->Reduit(CurrentZone(st));

  Double y = 0;
  if (FormMember<Control>(CurrentForm(st), "BarreOutils")->Visible()) {
    // Half a text height under the toolbar: off the grid on purpose.
    y = static_cast<Double>(FormMember<Control>(CurrentForm(st), "BarreOutils")->Height()) +
        Divide(static_cast<Double>(KySaisie{}.HauteurTexte()), 2);
  } else {
    y = KySaisie{}.WinLigne(1);
  }
  y += CurrentZone(st).ScaleTop();
  KySaisie{}.AffPosT(CLng(y), CLng(KySaisie{}.WinCol(1)));
}

}  // namespace ferlan
