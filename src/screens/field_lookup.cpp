// The lookup of a field by identifier: exact and case-sensitive, on the
// identifier without its trailing blanks; the first record that matches wins.
#include "screens/field_lookup.hpp"

#include "ferlan/kysaisie.hpp"
#include "screens/record_table.hpp"

namespace ferlan {

void KySaisie::RechRub(const String& I, Integer& R) {
  ModuleState& st = State();
  for (Integer n = 1; n <= st.NbRub; ++n) {
    if (screens::RubAt(st, n).Identif.Trimmed() == I) {
      R = n;
      return;
    }
  }
  // R keeps its value: the @ marks are for the reporter.
  st.Erreur->Message(u"Code Rubrique Inconnu @<" + I + u">@", u"RechRub");
}

namespace screens {

RubRecord& FieldRecord(ModuleState& st, const String& I) {
  Integer R = 0;
  KySaisie{}.RechRub(I, R);
  return RubAt(st, R);
}

}  // namespace screens
}  // namespace ferlan
