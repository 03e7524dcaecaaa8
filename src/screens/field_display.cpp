// Showing a value in a field without editing it, and a field's place on the
// grid. The record's positions are used as they stand, unrounded.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"
#include "ferlan/runtime.hpp"
#include "screens/field_lookup.hpp"

namespace ferlan {

void KySaisie::ConsDon(const String& I, const String& C) {
  const RubRecord rec = screens::FieldRecord(State(), I);
  KySaisie{}.AffDon(rec.L, rec.CT, rec.LzT, rec.CzT, C, rec.TypeDon.Trimmed());
}

void KySaisie::AffDon(Integer L, Single CT, Single LzT, Single CzT, String C, String T) {
  Integer NB = 0;
  Integer ND = 0;
  KySaisie{}.DecodeType(C, T, NB, ND);
  KySaisie{}.EffaceZoneSaisie(KySaisie{}.WinLigne(L), CzT, LzT, -1, nullptr);
  // Whole: a value wider than its box is not cut.
  KySaisie{}.AfficheColT(L, CT, u"N", C);
}

void KySaisie::PosAffRub(const String& I, Long& L, Long& C) {
  const RubRecord rec = screens::FieldRecord(State(), I);
  // The label's place, in lines and columns.
  L = rec.L;
  C = KySaisie{}.ColWin(rec.ClT);
}

}  // namespace ferlan
