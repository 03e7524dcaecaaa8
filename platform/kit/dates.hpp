// Dates: validation of a date typed as "dd/mm/yyyy" or "dd/mm/yy" in the
// Gregorian calendar, trailing blanks ignored. A two-digit year yy is 20yy
// from 00 to 49 and 19yy from 50 to 99. The sort number is yyyymmdd; a text
// that is no valid date gives False and 0.
#pragma once

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::kit {

class Dates : public ferlan::Dates {
 public:
  static constexpr int kPivot = 50;  // yy below: 20yy; from here: 19yy

  Boolean Valide(const String& M, Long& ORDREDATE) override;
};

}  // namespace ferlan::kit

FERLAN_PUBLIC_END
