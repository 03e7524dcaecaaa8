// The fixture of the field editor's suites: one field on line 2 of the headless surface, edited by
// a real call of Modif while the key script plays through the event loop.
#pragma once

#include <ostream>
#include <string>
#include <string_view>

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
  Integer c = 5;                 // grid column: only the scrolling uses it
  PictureBoxRef zone = nullptr;  // another surface, with the caret's offset on it
  Single caret_x = 0;
  Single caret_y = 0;
};

// A field of `lcm` entered at Col `col` (IMS "E").
inline Field At(String ch, Integer col, Integer lcm = 20) { return {ch, lcm, u"C", u"E", col}; }

// What the caller has after the edit.
struct Outcome {
  String ch;
  Integer tr = -1;
  Integer col = -1;
  bool operator==(const Outcome&) const = default;
  friend void PrintTo(const Outcome& o, std::ostream* os) {
    *os << "\"" << ToUtf8(o.ch) << "\" TR " << o.tr << " Col " << o.col;
  }
};

class EditorTest : public SessionTest {
 protected:
  // The field: line 2 (LT 624), column 5 (CT 525), in an entry box from CzT 420, LzT 2520 wide.
  static constexpr Single kCT = 525;

  // Queues `keys`, then runs Modif on the field.
  Outcome Edit(const Field& field, std::string_view keys) {
    Type(keys);
    Outcome out{field.ch, 0, field.col};
    KySaisie{}.Modif(624, field.c, kCT, field.lcm, 2520, 420, field.tv, out.ch, out.tr, field.ims,
                     &out.col, field.coul, field.zone, field.caret_x, field.caret_y);
    return out;
  }

  // The texts that Dessin.Texte drew since the last look, each followed by
  // "|": the field's, or with `status` the caret positions of the status line.
  std::string Drawn(bool status = false) {
    std::string texts;
    for (const headless::DessinCall& call : session.Recorder().TakeLog()) {
      if (call.name != "Texte") continue;
      const String text = VariantToString(call.args[2]);
      if (text.starts_with(u"Curseur ") != status) continue;
      texts += (status ? std::to_string(std::stoi(ToUtf8(Mid(text, 9)))) : ToUtf8(text)) + "|";
    }
    return texts;
  }

  ModuleState& St() { return State(); }
};

}  // namespace ferlan::testing
