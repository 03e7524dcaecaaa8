// The virtual keyboard: the host types through a buffer of key pairs that
// ScanClavier drains one pair per poll.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

namespace {

constexpr Long kHomeKey = 36;

void AddPair(ModuleState& st, const String& key, const String& kind) {
  st.Chaines->Ajoute(st.ClavierTampon, key);
  st.Chaines->Ajoute(st.ClavierTampon, kind);
}

}  // namespace

void KySaisie::ClavierVirtuel(const String& C, Integer T, Boolean VideAvant) {
  ModuleState& st = State();
  VideClavierVirtuel();  // one call replaces what an earlier one left
  // The blanking key first, so that the text replaces the field.
  if (VideAvant) AddPair(st, Chr(st.Env->ToucheVide()), u"False");
  if (!C.empty() && C.front() == u'\0') {  // a NUL, then the number of one control key
    const Long key = CLng(Val(Mid(C, 2)));
    AddPair(st, Chr(key), u"False");
    return;
  }
  for (char16_t c : C) AddPair(st, String(1, c), u"True");  // each character typed
  AddPair(st, Chr(kHomeKey), u"False");  // back to the start of the field
  if (T != 0) AddPair(st, Chr(T), u"False");  // then the key that ends the entry
}

void KySaisie::ClavierVirtuelToucheFonction(Integer F) {
  ClavierVirtuel(String(1, u'\0') + NumberText(F), 0, true);
}

}  // namespace ferlan
