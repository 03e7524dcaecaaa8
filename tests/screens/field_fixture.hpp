// The fixture of the suites that address fields by identifier: records put
// straight into the table, with the positions a laid-out screen gives them,
// and the reports that Erreur received.
#pragma once

#include <string>
#include <vector>

#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {

class FieldTest : public SessionTest {
 protected:
  // Appends a record: line, label X, entry box X and width, text X.
  RubRecord& AddField(StringView id, StringView typ, Integer line, Single clt, Single czt,
                      Single lzt, Single ct, Integer lc = 10) {
    ModuleState& st = State();
    RubRecord& r = st.Rub.at(static_cast<std::size_t>(++st.NbRub));
    r.Identif = id;
    r.Libelle = id;
    r.TypeDon = typ;
    r.Coul = u"I";
    r.LC = lc;
    r.LcT = KySaisie{}.WinCol(lc);
    r.L = line;
    r.ClT = clt;
    r.LlT = czt - clt;
    r.CzT = czt;
    r.LzT = lzt;
    r.CT = ct;
    return r;
  }
  RubRecord& Record(Integer n) { return State().Rub.at(static_cast<std::size_t>(n)); }

  // "source: text" of each report since the last look.
  std::vector<std::string> TakeReports() {
    std::vector<std::string> out;
    for (const auto& r : session.Records().reports) {
      out.push_back(r.code ? std::to_string(*r.code) : ToUtf8(r.source) + ": " + ToUtf8(r.text));
    }
    session.Records().reports.clear();
    return out;
  }
};

}  // namespace ferlan::testing
