// The key pipeline: the host's KeyDown and KeyPress reduced to one key code
// in one pending-key slot, and the polling wait that delivers it.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

namespace {

constexpr Integer kShiftKey = 16;
constexpr Integer kCapsLock = 20;
constexpr Integer kRepeatKey = 2082;  // Ctrl+R

// Keys that are control keys with every modifier mask.
bool IsControlKeyAlways(Integer key_code) {
  switch (key_code) {
    case 8: case 9: case 13: case 27:   // Backspace, Tab, Enter, Escape
    case 33: case 34: case 35: case 36:  // Page Up, Page Down, End, Home
    case 37: case 38: case 39: case 40:  // arrows
    case 45: case 46:                    // Insert, Delete
      return true;
    default:
      return key_code >= 112 && key_code <= 123;  // F1 to F12
  }
}

// Letters that are control keys with Ctrl alone or Alt alone: R, C, A, E, V.
bool IsChordLetter(Integer key_code) {
  return key_code == 82 || key_code == 67 || key_code == 65 || key_code == 69 ||
         key_code == 86;
}

}  // namespace

void KySaisie::IntercepteClavierKY(Boolean I) {
  ModuleState& st = State();
  ObjectRef clavier = CurrentForm(st).Member("ClavierKY");
  if (!clavier) throw PlatformError::ObjectNotSet();
  clavier->SetProperty("Interception", I);
}

void KySaisie::GestKeyDown(Integer& KeyCode, Integer Shift) {
  ModuleState& st = State();
  // The Shift key alone: nothing stored, Env.ToucheVirtuelle not written.
  if (KeyCode == kShiftKey && Shift == 1) {
    st.ToucheTraitee = false;
    return;
  }
  // A control key, whatever the modifiers: code Shift x 1000 + KeyCode.
  if (IsControlKeyAlways(KeyCode)) {
    ModifClavier(AddInt(MulInt(Shift, 1000), KeyCode), false);
    st.ToucheTraitee = true;
  } else if (IsChordLetter(KeyCode)) {  // a command with Ctrl alone or Alt alone
    if (Shift == 2 || Shift == 4) {
      ModifClavier(AddInt(MulInt(Shift, 1000), KeyCode), false);
      st.ToucheTraitee = true;
    } else {
      st.ToucheTraitee = false;
    }
  } else if (KeyCode == 0) {  // a key a handler already took: its character is dropped
    st.ToucheTraitee = true;
  } else if (Shift != 0) {  // any other chord: its character goes through
    st.ToucheTraitee = false;
  } else {  // a plain key types its character; Caps Lock alone is swallowed
    st.ToucheTraitee = KeyCode == kCapsLock;
  }
  if (st.ToucheTraitee) KeyCode = 0;  // the form does not see a key taken here
  st.Env->SetToucheVirtuelle(false);  // a real key came
}

void KySaisie::GestKeyPress(Integer& KeyAscii) {
  ModuleState& st = State();
  // Zeroing KeyCode in KeyDown doesn't stop the platform's KeyPress: the
  // flag drops the character of a key that KeyDown already took.
  if (!st.ToucheTraitee) {
    ModifClavier(KeyAscii, true);
    KeyAscii = 0;
  }
}

void KySaisie::ModifClavier(Integer KeyAscii, Boolean Caractère) {
  ModuleState& st = State();
  st.ToucheEnAttente = KeyAscii;
  st.EstCaractere = Caractère;
}

void KySaisie::ScanClavier(String& R, Boolean& A) {
  ModuleState& st = State();
  st.Global->DoEvents();  // lets the host deliver keys and run timers
  if (st.Env->Abandon()) return;
  if (st.ClavierTampon != u"[]") {  // one pair of the virtual keyboard a poll
    const String key = st.Chaines->Suivant(st.ClavierTampon);
    const Integer code = Asc(key);
    const String kind = st.Chaines->Suivant(st.ClavierTampon);
    ModifClavier(code, kind == u"True");
    st.Env->SetToucheVirtuelle(true);
  }
  if (st.ToucheEnAttente == 0) return;  // no key yet
  if (st.ToucheEnAttente == kRepeatKey) {  // the caller gets its own R back
    A = true;
    st.ToucheEnAttente = 0;
    return;
  }
  if (st.EstCaractere) {  // a character above 255 waits in the slot
    A = st.ToucheEnAttente >= 1 && st.ToucheEnAttente <= 255;
    if (A) {
      R = Chr(st.ToucheEnAttente);
      st.ToucheEnAttente = 0;
    }
  } else {  // a control key stays in the slot for Saisie
    A = true;
  }
}

void KySaisie::Saisie(String& R, Integer* Code) {
  ModuleState& st = State();
  st.ToucheEnAttente = 0;  // a key that came before the wait is lost
  Boolean a = false;
  while (!a) {  // polls until a key or Abandon
    if (st.Env->Abandon()) {
      a = true;
      st.ToucheEnAttente = 0;
    } else {
      ScanClavier(R, a);
    }
  }
  if (Code) *Code = st.ToucheEnAttente;  // the slot keeps a control key
}

void KySaisie::VideClavierVirtuel() { State().ClavierTampon = u"[]"; }

void KySaisie::VideClavier() {
  ModuleState& st = State();
  VideClavierVirtuel();
  while (st.ToucheEnAttente != 0) {
    st.ToucheEnAttente = 0;
    st.Global->DoEvents();
  }
}

}  // namespace ferlan
