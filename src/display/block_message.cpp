// The handover of a block message to the message service, with the
// surface's bold off for the time of the call and the display position on
// the line above the message's.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

void KySaisie::AfficheBlocMes(const String& M, Long L) {
  ModuleState& st = State();
  const Boolean bold = CurrentZone(st).Font().Bold();
  CurrentZone(st).Font().SetBold(false);
  KySaisie{}.AffPos(SubLng(L, 1), 1);
  st.Boite->BlocMes(CurrentZone(st), M, L);
  CurrentZone(st).Font().SetBold(bold);
}

}  // namespace ferlan
