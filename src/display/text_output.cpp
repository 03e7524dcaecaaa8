// The one output primitive, Aff, and the calls that place the display
// position before it. Aff never wraps, scrolls or pages: a text that passes
// the right edge widens the surface instead.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

void KySaisie::Aff(const String& C, const String& Mes) {
  ModuleState& st = State();
  const Integer height = ToInteger(KySaisie{}.HauteurTexte());
  const Long width = CLng(KySaisie{}.LargeurTexte(Mes));

  const Single x = st.Env->CourantX();
  const Single y = st.Env->CourantY();
  const Single x_end = CSng(static_cast<Double>(x) + width);
  const Single y_end = CSng(static_cast<Double>(y) + height);

  // The box covers the text only: a shorter text over a longer one leaves
  // the tail of the old one standing.
  st.Dessin->EffaceRect(CurrentZone(st), x, y, x_end,
                        CSng(static_cast<Double>(y_end) - st.Env->MargeY()), -1);

  // Widen after the clearing and before the painting. Height is never
  // looked at: a text below the bottom edge just falls outside.
  const Double needed = static_cast<Double>(x) + width + st.Env->MargeX();
  if (needed > CurrentZone(st).ScaleWidth()) {
    KySaisie{}.DimensionFeuilleLT(KySaisie{}.NbLigne(), CSng(needed), false);
  }

  // Arguments in their written order: the surface is taken before the
  // colour code is looked up (and perhaps reported).
  const PictureBoxRef box_zone = CurrentZoneRef(st);
  const Single box_bottom = CSng(static_cast<Double>(y_end) - MulInt(2, st.Env->MargeY()));
  const Long background = KySaisie{}.CouleurFond(C);
  st.Dessin->Pave(*box_zone, x, y, x_end, box_bottom, background);

  // Dessin.Texte leaves Env.CourantX behind the text; Aff stores nothing.
  // An unknown code has been reported by Couleur and draws in colour 0.
  const PictureBoxRef text_zone = CurrentZoneRef(st);
  const Long colour = KySaisie{}.Couleur(C);
  st.Dessin->Texte(*text_zone, x, y, Mes, colour);
}

void KySaisie::AfficheT(Long LT, Single CT, const String& C, const String& Mes) {
  ModuleState& st = State();
  // Straight into Env: the surface's CurrentX and CurrentY are not touched.
  st.Env->SetCourantY(static_cast<Single>(LT));
  st.Env->SetCourantX(CT);
  KySaisie{}.Aff(C, Mes);
}

void KySaisie::AfficheColT(Long L, Single CT, const String& C, const String& Mes) {
  KySaisie{}.AfficheT(CLng(KySaisie{}.WinLigne(static_cast<Single>(L))), CT, C, Mes);
}

void KySaisie::Affiche(Long L, Integer Col, const String& C, const String& Mes) {
  KySaisie{}.AfficheColT(L, KySaisie{}.WinCol(Col), C, Mes);
}

}  // namespace ferlan
