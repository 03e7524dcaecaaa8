// Copy and paste. There is no selection: copy takes the rest of the field
// from the caret, paste puts the clipboard's text at the caret.
#include "editor/key_commands.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

void CopyRest(EditState& e) {
  KySaisie{}.Ctrl_C(Trim(Mid(e.CH, e.P)));
  // The box shows the rest untrimmed. Its answer is of no use here, and the
  // edit goes on once it is closed.
  e.st.Boite->Message(u"Information", u"Presse Papier",
                      u"@" + Mid(e.CH, e.P) + u"@ est dans le Presse Papier", u"", 0);
}

void Paste(EditState& e) {
  String s;
  // The one error the editor catches: a clipboard that can't be read pastes
  // nothing.
  try {
    s = e.st.Global->Clipboard().GetText(1);
  } catch (const PlatformError&) {
  }
  // Insertion alone decides, whatever the kind of field; nothing is filtered.
  if (e.st.Insertion) {
    e.CH = Left(e.CH, SubInt(e.P, 1)) + s + Mid(e.CH, e.P);
  } else {
    MidAssign(e.CH, e.P, Len(s), s);  // never grows CH
  }
  e.CH = Left(e.CH, e.LC);
  e.LU = ToInteger(Len(e.CH));
}

}  // namespace ferlan
