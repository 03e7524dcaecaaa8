// Three small public helpers of the field editor. They hold no state, and a
// host may call them directly.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

void KySaisie::Ctrl_C(const String& C) {
  ModuleState& st = State();
  // The clipboard is fetched anew for each operation. No guard: a clipboard
  // that can't be opened fails the caller.
  st.Global->Clipboard().Clear();
  st.Global->Clipboard().SetText(C);  // no format given: plain text
}

Boolean KySaisie::FnMot(Integer X) {
  // Plain letters and digits only; accented letters are not word characters.
  return (X >= 48 && X <= 57) || (X >= 65 && X <= 90) || (X >= 97 && X <= 122);
}

void KySaisie::FormatDate(String& CH, const String& TV) {
  if (TV != u"D") return;
  // The Mid statement fails (error 5) on a text too short to hold position 6.
  MidAssign(CH, 3, 1, u"/");
  MidAssign(CH, 6, 1, u"/");
}

}  // namespace ferlan
