// The fixture of the field editor's suites: one field on line 2 of the
// headless surface, edited by a real call of Modif while the key script
// plays through the event loop.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "component/module_state.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {

// A field as Modif gets it.
struct Field {
  String ch;
  Integer lcm = 20;
  String tv = u"C";
  String ims = u"F";
  Integer col = 0;
  String coul = u"B";
  Integer c = 5;  // grid column: only the scrolling uses it
};

// What the caller has after the edit.
struct Outcome {
  String ch;
  Integer tr = -1;
  Integer col = -1;
};

class EditorTest : public SessionTest {
 protected:
  // The field's place: line 2, column 5 of the fixed-metric grid (the
  // column is Field::c).
  static constexpr Single kLT = 624;
  static constexpr Single kCT = 525;
  static constexpr Single kCzT = 420;
  static constexpr Single kLzT = 2520;

  // Queues `keys`, then runs Modif on the field.
  Outcome Edit(const Field& field, std::string_view keys) {
    Type(keys);
    Outcome out{field.ch, 0, field.col};
    KySaisie{}.Modif(kLT, field.c, kCT, field.lcm, kLzT, kCzT, field.tv, out.ch, out.tr, field.ims,
                     &out.col, field.coul);
    return out;
  }

  // The texts that Dessin.Texte drew since the last look, in order, without
  // the "Curseur" status line.
  std::vector<String> FieldTexts() {
    std::vector<String> texts;
    for (const headless::DessinCall& call : session.Recorder().TakeLog()) {
      if (call.name != "Texte") continue;
      const String text = VariantToString(call.args[2]);
      if (text.starts_with(u"Curseur ")) continue;
      texts.push_back(text);
    }
    return texts;
  }

  ModuleState& St() { return State(); }
};

}  // namespace ferlan::testing
