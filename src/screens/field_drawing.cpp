// GénèreControl: draws one field of the record table as two drawings on the
// surface, a raised label box and a white entry box, a little less high
// than a line and starting a little above it. No control object is made;
// the entry's text is drawn later by the editor or by AffDon.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"
#include "screens/record_table.hpp"

namespace ferlan {

void KySaisie::GénèreControl(Integer I) {
  ModuleState& st = State();
  KySaisie ky;
  const RubRecord& r = screens::RubAt(st, I);
  // MargeX on the vertical is deliberate: both boxes start that far above
  // the line.
  const Single y = CSng(static_cast<Double>(ky.WinLigne(r.L)) - MulInt(3, st.Env->MargeX()));
  const Single h = CSng(static_cast<Double>(ky.WinLigne(1)) - MulInt(3, st.Env->MargeY()));

  // Arguments in their written order: the surface, then the colours (an
  // unknown code is reported by Couleur and draws in colour 0).
  const PictureBoxRef label_zone = CurrentZoneRef(st);
  const String colour = r.Coul.Trimmed();
  const Long background = ky.CouleurFond(colour);
  const Long foreground = ky.Couleur(colour);
  st.Dessin->Cadre3D(*label_zone, background, foreground, r.Libelle.Trimmed(), y, r.ClT, r.LlT, h,
                     u"3D", 0, u"G");

  const PictureBoxRef entry_zone = CurrentZoneRef(st);
  st.Dessin->Rectangle(*entry_zone, st.Env->Blanc(), y, r.CzT, r.LzT, h);
}

}  // namespace ferlan
