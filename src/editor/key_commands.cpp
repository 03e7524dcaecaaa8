// The command table. Rows are tried in order and the first that fits wins;
// keys of Env are read at the moment their row is tried, so when Env gives
// two roles the same code, the earlier row takes it. A key that fits no row
// does nothing: the pass redraws the field and reads the next key.
#include "editor/key_commands.hpp"

#include <array>

#include "editor/caret_form.hpp"
#include "editor/field_kinds.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {
namespace {

struct CommandRow {
  Boolean (*fits)(EditState& e);
  void (*run)(EditState& e);
};

Env& EnvOf(EditState& e) { return *e.st.Env; }

// The blanking key. LU becomes 1, not 0, so End then goes to 2.
void BlankField(EditState& e) {
  e.CH = Space(e.LC);
  BlankZone(e);
  e.P = 1;
  e.LU = 1;
}

// Left; nothing is deleted, Backspace included.
void MoveLeft(EditState& e) {
  if (e.P > 1) {
    e.P = SubInt(e.P, 1);
    SkipDateSeparator(e, -1);
  }
}

void MoveRight(EditState& e) {
  if (e.P < e.LC) {
    e.P = AddInt(e.P, 1);
    SkipDateSeparator(e, 1);
  }
}

// Insert. The picture follows Insertion even where the field ignores it.
void ToggleInsertion(EditState& e) {
  if (e.st.Insertion) {
    e.st.Insertion = false;
    ChooseCaretPicture(e.st);
  } else if (InsertKeyMayTurnOn(e)) {
    e.st.Insertion = true;
    ChooseCaretPicture(e.st);
  }
}

// Delete. LU goes down wherever the caret stands, also behind the text.
void DeleteAtCaret(EditState& e) {
  if (!DeleteAllowed(e)) return;
  e.CH = Left(e.CH, SubInt(e.P, 1)) + Mid(e.CH, AddInt(e.P, 1)) + u" ";
  if (e.LU > 1) e.LU = SubInt(e.LU, 1);
}

void GoToEnd(EditState& e) { e.P = e.LU < e.LC ? AddInt(e.LU, 1) : e.LU; }

// Ctrl+End: cut from the caret to the end; a date keeps its separators.
void CutToEnd(EditState& e) {
  e.CH = e.st.Conv->Cadre(Left(e.CH, SubInt(e.P, 1)), e.LC, 0);
  KySaisie{}.FormatDate(e.CH, e.TV);
  e.LU = SubInt(e.P, 1);
}

// Tab and Shift+Tab: the test reads 8 but the step is 7.
void TabRight(EditState& e) {
  if (AddInt(SubInt(e.LC, e.P), 1) < 8) {
    e.P = e.LC;
  } else {
    e.P = AddInt(e.P, 7);
  }
}

void TabLeft(EditState& e) { e.P = e.P < 8 ? Integer{1} : SubInt(e.P, 7); }

// The leaving keys. Env is read one key at a time, stopping at the
// first that fits.
Boolean IsLeavingKey(EditState& e) {
  Env& env = EnvOf(e);
  if (e.Code == env.ToucheEntree()) return true;
  if (e.Code == env.ToucheHaut()) return true;
  if (e.Code == env.ToucheBas()) return true;
  if (e.Code == env.TouchePageHaut()) return true;
  if (e.Code == env.TouchePageBas()) return true;
  const Integer first = env.ToucheF1();
  return e.Code >= first && e.Code <= env.ToucheF12();
}

void Leave(EditState& e) {
  e.TR = e.Code;
  e.Fin = true;
}

constexpr std::array<CommandRow, 18> kCommandTable = {{
    // A character, or Ctrl+R.
    {[](EditState& e) { return e.Code == 0; }, TypeCharacter},
    // Ctrl+C.
    {[](EditState& e) { return e.Code == 2067; }, CopyRest},
    // Ctrl+V.
    {[](EditState& e) { return e.Code == 2086; }, Paste},
    // The blanking key.
    {[](EditState& e) { return e.Code == EnvOf(e).ToucheVide(); }, BlankField},
    // Left arrow, Backspace.
    {[](EditState& e) {
       return e.Code == EnvOf(e).ToucheGauche() || e.Code == EnvOf(e).ToucheRetour();
     },
     MoveLeft},
    // Right arrow.
    {[](EditState& e) { return e.Code == EnvOf(e).ToucheDroite(); }, MoveRight},
    // Insert.
    {[](EditState& e) { return e.Code == 45; }, ToggleInsertion},
    // Delete.
    {[](EditState& e) { return e.Code == 46; }, DeleteAtCaret},
    // Home.
    {[](EditState& e) { return e.Code == 36; }, [](EditState& e) { e.P = 1; }},
    // End.
    {[](EditState& e) { return e.Code == 35; }, GoToEnd},
    // Ctrl+End.
    {[](EditState& e) { return e.Code == 2035; }, CutToEnd},
    // Tab.
    {[](EditState& e) { return e.Code == 9; }, TabRight},
    // Shift+Tab.
    {[](EditState& e) { return e.Code == 1009; }, TabLeft},
    // Ctrl+Right.
    {[](EditState& e) { return e.Code == 2039; }, WordRight},
    // Ctrl+Left.
    {[](EditState& e) { return e.Code == 2037; }, WordLeft},
    // Alt+C: help on the keyboard.
    {[](EditState& e) { return e.Code == 4067; },
     [](EditState& e) { e.st.Aide->Affiche(u"CLAVIER"); }},
    // Alt+A: help on the topic of the moment.
    {[](EditState& e) { return e.Code == 4065; },
     [](EditState& e) { e.st.Aide->Affiche(EnvOf(e).SujetAide()); }},
    // The leaving keys; CH stays as it is.
    {IsLeavingKey, Leave},
}};

}  // namespace

void CarryOutKey(EditState& e) {
  for (const CommandRow& row : kCommandTable) {
    if (row.fits(e)) {
      row.run(e);
      return;
    }
  }
  // Any other key: nothing.
}

}  // namespace ferlan
