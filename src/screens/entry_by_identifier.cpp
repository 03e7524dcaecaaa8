// Entry into a field of the current screen by its identifier: the record
// gives the geometry and the type code, ModD does the entry, and the stored
// form that comes back is kept in the record's Valeur.
//
// The record's positions are rounded to whole surface units on the way to
// ModD (ties to even), as its parameters are whole numbers; the display by
// identifier uses them unrounded.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"
#include "ferlan/runtime.hpp"
#include "screens/record_table.hpp"

namespace ferlan {

void KySaisie::SaisDon(const String& I, String& C, Integer& TR, const String& IMS, Long* O,
                       const String& LRacAutoNb, const String& Coul) {
  ModuleState& st = State();
  Integer R = 0;
  KySaisie{}.RechRub(I, R);
  // Copied before the wait: a host's handler may replace the table meanwhile.
  const RubRecord rec = screens::RubAt(st, R);

  const Long ct = CLng(rec.CT);
  const Integer column = ToInteger(DivLng(ct, CLng(KySaisie{}.WinCol(1))));
  KySaisie{}.ModD(C, rec.TypeDon.Trimmed(), rec.L, column, static_cast<Single>(ct), rec.LC, TR,
                  CLng(rec.LzT), CLng(rec.CzT), IMS, O, LRacAutoNb, Coul);
  screens::RubAt(st, R).Valeur = C;
}

void KySaisie::SaisDonnee(const String& P, const String& I, String& C, Integer& TR, Long* O,
                          const String& LRacAutoNb, const String& Coul) {
  // Only a date entry hands the sort number back; the others drop theirs.
  Long private_o = 0;
  if (P.empty()) {
    KySaisie{}.SaisDon(I, C, TR, u"F", &private_o, LRacAutoNb, Coul);
  } else if (P == u"D") {
    KySaisie{}.SaisDon(I, C, TR, u"F", O != nullptr ? O : &private_o, LRacAutoNb, Coul);
  } else if (P == u"F") {
    // Caret behind the value: the user adds to it.
    KySaisie{}.SaisDon(I, C, TR, u"V", &private_o, LRacAutoNb, Coul);
  }
  // Any other kind: no entry at all.
}

void KySaisie::Sai(const String& I, String& C, Integer& TR, Boolean ClavierKY,
                   const String& LRacAutoNb, const String& Coul) {
  if (ClavierKY) KySaisie{}.IntercepteClavierKY(true);
  Long O = 0;
  KySaisie{}.SaisDonnee(u"", I, C, TR, &O, LRacAutoNb, Coul);
  // Whether or not it was switched on.
  KySaisie{}.IntercepteClavierKY(false);
}

void KySaisie::SaiD(const String& I, String& C, Integer& TR, Long& O, const String& Coul) {
  KySaisie{}.SaisDonnee(u"D", I, C, TR, &O, u"[]", Coul);
}

void KySaisie::SaiF(const String& I, String& C, Integer& TR, const String& Coul) {
  Long O = 0;
  KySaisie{}.SaisDonnee(u"F", I, C, TR, &O, u"[]", Coul);
}

}  // namespace ferlan
