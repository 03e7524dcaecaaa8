// Holding the program until the operator acknowledges: through the host's
// message box, or in a one-character field under a prompt block at the
// bottom of the surface, with the screen saved around it.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

void KySaisie::MessageAttente() {
  ModuleState& st = State();
  // The @ pair is for Boite; the answer is of no interest.
  st.Boite->Message(u"Simple", u"", u"Veuillez Taper sur @Entrée@ pour Continuer", u"", 0);
}

void KySaisie::Attente() {
  ModuleState& st = State();
  // The field's line: two from the bottom. The block is laid out below its
  // base line, one higher, so prompt and field share this line.
  const Integer line = SubInt(NbLigne(), 2);
  String value = u" ";
  MemEcr();
  AffPos(SubInt(line, 1), 1);
  String prompt = u"[Veuillez Taper sur Entrée pour Continuer]";
  AffBloc(u"Bleu", prompt, u"D", false, true, false);
  // One column behind the prompt's last character.
  const Long x = CLng(static_cast<Double>(st.Env->CourantX()) + WinCol(1));
  const Integer column = ToInteger(ColWin(static_cast<Single>(x)));
  // Which key ended the entry, and what was typed, play no part.
  Integer key = 0;
  Long date_order = 0;
  ModD(value, u"A", line, column, static_cast<Single>(x), 1, key, CLng(WinCol(1)), 0, u"F",
       &date_order, u"[]", u"B");
  // Also after an abandon: the screen comes back as it was.
  ResEcr();
}

}  // namespace ferlan
