// Where the cells of the current table are: the grid column of a column
// identifier, the grid line of a row, and the number of rows.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

Integer KySaisie::NLTab() { return State().NbLignesTable; }

Integer KySaisie::LTab(Long L) {
  // LTab(0) is the titles' line.
  return ToInteger(SubLng(AddLng(State().LigneTable, L), 2));
}

void KySaisie::RechIdenTab(const String& I, Integer& R) {
  ModuleState& st = State();
  Long j = 0;
  Boolean found = false;
  // Trailing blanks do not count on either side; case does. The first
  // match wins.
  while (j < st.NbColonnes && !found) {
    j = AddLng(j, 1);
    if (static_cast<std::size_t>(j) >= st.Colonnes.size()) {
      throw PlatformError::SubscriptOutOfRange();
    }
    found = st.Conv->Elague(st.Colonnes[static_cast<std::size_t>(j)].Ident.Text()) ==
            st.Conv->Elague(I);
  }
  if (found) {
    R = ToInteger(j);
  } else {
    st.Erreur->Message(u"Identif Inconnu " + I, u"RECHIDENTAB");
  }
}

Integer KySaisie::CTab(const String& I) {
  ModuleState& st = State();
  Integer r = 0;
  KySaisie{}.RechIdenTab(I, r);
  // Unknown: element 0, whose column is 0. Before any table there is no
  // array to read.
  if (r < 0 || static_cast<std::size_t>(r) >= st.Colonnes.size()) {
    throw PlatformError::SubscriptOutOfRange();
  }
  return st.Colonnes[static_cast<std::size_t>(r)].ColDeb;
}

}  // namespace ferlan
