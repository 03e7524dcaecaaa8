// The message zone: the form's picture control "zoneMessage", shown flush
// under the surface and centred under it (not under the form). The host
// sizes the control; the component only places it and makes room for it.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

void KySaisie::AfficheZoneMessage(const PictureRef& P) {
  ModuleState& st = State();
  // Held for the whole call: Centrage runs the host's handlers, which must
  // not make this call place another control than the one it filled.
  FormRef form = st.Env->KyF();
  if (!form) throw PlatformError::ObjectNotSet();
  const auto message = FormMember<PictureBox>(*form, "zoneMessage");
  // By reference: the control shows that very picture. Done before the
  // surface is read, so that a call failing there has already filled it.
  message->SetPicture(P);

  const PictureBoxRef zone = CurrentZoneRef(st);
  const Single bottom = CSng(static_cast<Double>(zone->Top()) + zone->Height());
  const Single room = CSng(static_cast<Double>(form->ScaleHeight()) - bottom);
  const Double wanted = 1.1 * static_cast<Double>(message->Height());
  // Strictly less: room of exactly 1.1 heights is enough.
  if (room < wanted) Centrage(zone, CLng(wanted));

  // The surface's place after any centring; the zone may then reach past the
  // form's lower edge, and a zone wider than the surface starts left of it.
  message->SetTop(CSng(static_cast<Double>(zone->Top()) + zone->Height()));
  message->SetLeft(CSng(static_cast<Double>(zone->Left()) +
                        Divide(static_cast<Double>(zone->Width()) - message->Width(), 2)));
  message->SetVisible(true);
}

void KySaisie::EffaceZoneMessage() {
  ModuleState& st = State();
  // Only hidden: the picture stays, and the room made for it too.
  FormMember<PictureBox>(CurrentForm(st), "zoneMessage")->SetVisible(false);
}

}  // namespace ferlan
