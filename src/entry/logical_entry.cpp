// Yes/no values between a Boolean and its one-letter text, "O" or "N", and
// two entries of a Boolean: in a field of the current screen, and at the
// display position with no screen at all.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"
#include "ferlan/runtime.hpp"

namespace ferlan {

String KySaisie::TrLogS(Boolean B) { return B ? u"O" : u"N"; }

void KySaisie::TransLogS(Boolean B, String& L) { L = KySaisie{}.TrLogS(B); }

void KySaisie::TransSLog(const String& L, Boolean& B) {
  // Exactly "O": the stored letter's reader is more lenient than this.
  B = L == u"O";
}

void KySaisie::SaisL(const String& I, Boolean& L, Integer& TR, const String& Coul) {
  String S;
  KySaisie{}.TransLogS(L, S);
  // The field's own type code rules the entry; a "B" field stores S as is.
  Long O = 0;
  KySaisie{}.SaisDonnee(u"", I, S, TR, &O, u"[]", Coul);
  L = S == u"O";
}

void KySaisie::SaiLON(Boolean& Logique, Integer& TR, const String& Coul) {
  Long Ligne = 0;
  Long Colonne = 0;
  KySaisie{}.PosAff(&Ligne, &Colonne);
  // The entry begins one column right of the display position.
  Colonne = AddLng(Colonne, 1);
  String S = Logique ? u"O" : u"N";
  Long ORDREDATE = 0;
  // LzT and CzT at 0: ModDT sizes the box itself. 3 is the width of "OUI".
  KySaisie{}.ModD(S, u"B", ToInteger(Ligne), ToInteger(Colonne), KySaisie{}.WinCol(Colonne), 3, TR,
                  0, 0, u"F", &ORDREDATE, u"[]", Coul);
  Logique = S == u"O";
}

}  // namespace ferlan
