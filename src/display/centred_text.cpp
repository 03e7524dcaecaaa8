// A text centred on a line, and the message near the bottom of the surface.
// The only output that cuts text: on a surface already near the width of the
// screen, a text too wide loses characters until it fits.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

void KySaisie::AfficheCentre(Long L, const String& C, String Mes, Boolean EffAv, Long* ColFin) {
  ModuleState& st = State();
  String text = std::move(Mes);

  if (EffAv) KySaisie{}.EffaceLigne(ToInteger(L), 1);
  // An empty text only clears: ColFin keeps its value.
  if (text.empty()) return;

  if (st.Env->MargeX() + static_cast<Double>(KySaisie{}.LargeurTexte(text)) >
      CurrentZone(st).ScaleWidth()) {
    const Single wanted =
        CSng(st.Env->MargeX() + static_cast<Double>(KySaisie{}.LargeurTexte(text)));
    KySaisie{}.DimensionFeuilleLT(KySaisie{}.NbLigne(), wanted, false);
  }

  // Surface and screen widths are compared as they come, in their units.
  if (CurrentZone(st).ScaleWidth() >= 0.9 * static_cast<Double>(st.Global->Screen().Width())) {
    while (KySaisie{}.LargeurTexte(text) > CurrentZone(st).ScaleWidth()) {
      st.Conv->Tronque(text, 1);
    }
  }

  // Rounded to a whole number first, then halved dropping the remainder.
  const Long free_width = CLng(static_cast<Double>(CurrentZone(st).ScaleWidth()) -
                               KySaisie{}.LargeurTexte(text));
  const Long start = free_width / 2;
  KySaisie{}.AfficheColT(L, static_cast<Single>(start), C, text);

  // In surface units despite its name: where Dessin.Texte left the position.
  const Long end = CLng(st.Env->CourantX());
  if (ColFin != nullptr) *ColFin = end;
}

void KySaisie::MesBasEcran(const String& C, const String& Mes) {
  Long line = 0;
  Long column = 0;
  KySaisie{}.PosAff(&line, &column);
  KySaisie{}.AfficheCentre(SubInt(KySaisie{}.NbLigne(), 2), C, Mes, true);
  // Back to the grid position, not to the exact surface coordinates.
  KySaisie{}.AffPos(line, column);
}

}  // namespace ferlan
