// `get` of the record table: "NbRub" and "Rub.<N>.<Field>" ("Rub.3.CzT"),
// read from the session's apartment. Read-only: `set` refuses these names.
#pragma once

#include <optional>
#include <string>

#include "ferlan/variant.hpp"

namespace ferlan::tool {

// Whether `path` names the record table ("NbRub", or "Rub" and a point).
bool IsRecordTablePath(const std::string& path);

// The value `path` names; nullopt when it is not a name of the table. A
// record number that is not a whole number is a bad request (5), one outside
// 0 to 40 raises 9, an unknown field 438.
std::optional<Variant> RecordTableValue(const std::string& path);

}  // namespace ferlan::tool
