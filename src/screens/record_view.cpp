// The read-only view of the record table that include/ferlan/screen_records.hpp
// offers outside the component.
#include <string>

#include "ferlan/screen_records.hpp"
#include "screens/record_table.hpp"

namespace ferlan {

Integer ScreenRecordCount() { return State().NbRub; }

Variant ScreenRecordField(Long index, std::string_view field) {
  const RubRecord& r = screens::RubAt(State(), index);
  if (field == "Identif") return r.Identif.Trimmed();
  if (field == "Libelle") return r.Libelle.Trimmed();
  if (field == "TypeDon") return r.TypeDon.Trimmed();
  if (field == "Coul") return r.Coul.Trimmed();
  if (field == "Valeur") return r.Valeur.Trimmed();
  if (field == "LC") return r.LC;
  if (field == "LcT") return r.LcT;
  if (field == "LzT") return r.LzT;
  if (field == "L") return r.L;
  if (field == "ClT") return r.ClT;
  if (field == "CzT") return r.CzT;
  if (field == "CT") return r.CT;
  if (field == "LlT") return r.LlT;
  throw PlatformError::MemberNotSupported(std::string("Rub().") + std::string(field));
}

}  // namespace ferlan
