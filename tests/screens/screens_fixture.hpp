// The fixtures of the entry-screen suites: a headless session on the fixed-metric surface (a column
// 105 wide, a line 312 high, MargeX and MargeY 1), and the record table of its apartment.
#pragma once

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
};

// Screens read by Dorvi, with a palette of small numbers so that drawing logs read easily.
class ScreenTest : public FieldTest {
 protected:
  void SetUp() override {
    Env().Bleu = 1;
    Env().Jaune = 2;
    Env().Blanc = 3;
    Env().CouleurB = 4;
  }
  // Runs Dorvi on a copy of `definition` and gives what it left in it.
  String Read(const String& definition) {
    String list = definition;
    ky.Dorvi(list);
    return list;
  }
  const RubRecord& Rub(int i) { return Record(static_cast<Integer>(i)); }
  Integer NbRub() { return State().NbRub; }
  KySaisie ky;
};

}  // namespace ferlan::testing
