// The check of a numeric entry. The text the user typed is examined on a
// working copy N; what is stored is always the field's text M, which keeps
// its root, and a franc amount or an expression reaches M only as a
// calculator result that the user must confirm.
#include "entry/numeric_check.hpp"

#include <cmath>

namespace ferlan::entry {

namespace {

// The fixed conversion rate from francs to euros, as a divisor the
// calculator reads.
constexpr char16_t kFrancsDivisor[] = u"/6.55957";

// The largest magnitude an "I" field takes. Both sides stop at 32767, so
// -32768, which 16 bits could hold, is refused as well.
constexpr Double kIntegerLimit = 32767;

// Significant digits a Single and a Double carry; the whole part must stay
// below 10 to the power (digits - ND).
constexpr Integer kSingleDigits = 7;
constexpr Integer kDoubleDigits = 15;

// A trailing F, in either case, asks for francs to be turned into euros.
void ConvertFrancs(ModuleState& st, String& N) {
  if (st.Conv->FinitPar(UCase(N), u"F")) {
    N = st.Conv->SansFin(N, 1) + kFrancsDivisor;
  }
}

// The first root of the list that N begins with, removed from N; empty when
// none fits. Only one root is ever taken off. Works on a private copy, so
// the caller's list is left as it was.
String TakeRoot(ModuleState& st, String& N, const String& LRacAutoNb) {
  String Racine;
  if (LRacAutoNb == u"[]") return Racine;
  String liste = LRacAutoNb;
  while (liste != u"[]") {
    const String before = liste;
    String element = st.Chaines->Suivant(liste);
    if (st.Conv->EstRacine(element, N)) {
      Racine = element;
      N = st.Conv->SansRacine(N, Racine);
      return Racine;
    }
    // A list that no longer shortens would hold the entry for ever.
    if (liste == before) break;
  }
  return Racine;
}

// Whether a plain number is within the range of its letter. "N" and any
// other letter have no range.
Boolean WithinRange(ModuleState& st, const String& N, const String& T, Integer ND) {
  const Double value = Val(N);
  const Double whole = std::floor(std::fabs(value));
  if (T == u"I") return std::fabs(value) <= kIntegerLimit;
  if (T == u"S") return whole < st.Conv->Puissance(10, SubInt(kSingleDigits, ND));
  if (T == u"D") return whole < std::pow(10.0, SubInt(kDoubleDigits, ND));
  return true;
}

}  // namespace

NumericOutcome CheckNumeric(ModuleState& st, String& M, const String& T, Integer ND,
                            const String& LRacAutoNb) {
  String N = M;
  ConvertFrancs(st, N);
  const String Racine = TakeRoot(st, N, LRacAutoNb);

  st.Env->SetSaisieOK(st.Conv->NombreValide(N, ND));
  if (st.Env->SaisieOK() && !WithinRange(st, N, T, ND)) st.Env->SetSaisieOK(false);
  if (st.Env->SaisieOK()) return NumericOutcome::Checked;

  // Not a plain number in range: perhaps an expression. A number out of
  // range goes this way too and comes back as itself.
  String Forme;
  st.Env->SetSaisieOK(st.Calcul->Analyse(N, Forme));
  if (!st.Env->SaisieOK()) return NumericOutcome::Checked;
  String Resultat;
  st.Env->SetSaisieOK(st.Calcul->Evalue(Forme, Resultat));
  if (!st.Env->SaisieOK()) return NumericOutcome::Checked;

  M = Racine + Resultat;
  return NumericOutcome::Computed;
}

}  // namespace ferlan::entry
