// A read-only look at the record table of the calling thread's current
// entry screen, for hosts, tools and tests that want to see what Dorvi and
// EcrSais made. Texts come without their trailing blanks, as every reader
// of the table takes them; element 0 reads as blanks and zeros.
#pragma once

#include <string_view>

#include "ferlan/runtime.hpp"
#include "ferlan/variant.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan {

// NbRub: the records in use, 0 to 40.
Integer ScreenRecordCount();

// Field `field` of record `index`, by its name in the record: "Identif",
// "Libelle", "TypeDon", "Coul", "Valeur" (String), "LC", "L" (Integer),
// "LcT", "LzT", "ClT", "CzT", "CT", "LlT" (Single). An index outside 0 to 40
// raises 9, an unknown field 438.
Variant ScreenRecordField(Long index, std::string_view field);

}  // namespace ferlan

FERLAN_PUBLIC_END
