// The fixture of the entry-screen suites: a headless session on the
// fixed-metric surface (a column 105 wide, a line 312 high, MargeX and
// MargeY 1), a palette of small numbers so that drawing logs read easily,
// and the record table of the session's apartment.
#pragma once

#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {

class ScreenTest : public SessionTest {
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
  const RubRecord& Rub(int i) { return State().Rub.at(static_cast<std::size_t>(i)); }
  Integer NbRub() { return State().NbRub; }
  KySaisie ky;
};

}  // namespace ferlan::testing
