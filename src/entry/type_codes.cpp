// Type codes: the conversion between a value's stored form, which the host
// keeps, and its display form, which is shown and edited.
//
// A code of exactly one character is plain ("A" text, "D" date, "B" yes/no);
// any other length is numeric: a letter ("I", "S", "D", "N") followed by the
// number of decimals. "D" alone is a date, "D0" a double.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"
#include "ferlan/runtime.hpp"

namespace ferlan {

namespace {

constexpr Integer kNumericFamily = -1;  // a Boolean True held in an Integer
constexpr Integer kPlainFamily = 0;

// The packed forms have fixed widths: 2, 4 and 8 characters.
constexpr Long kIntegerWidth = 2;
constexpr Long kSingleWidth = 4;
constexpr Long kDoubleWidth = 8;

// Reported once for a numeric code whose letter nobody knows; the @ pairs
// are for the reporter, not for us.
String UnknownTypeText(const String& letter) {
  return u"Le Type de Donnée <@" + letter + u"@> est Inconnu";
}

// The number a numeric stored form holds, by the letter of its code. An
// unknown letter has been reported already and counts as zero.
Double StoredNumber(ModuleState& st, const String& C, const String& letter) {
  if (letter == u"N") return Val(RTrim(C));
  if (letter == u"I") return st.Conv->EntierBin(Left(C, kIntegerWidth));
  if (letter == u"S") return st.Conv->SimpleBin(Left(C, kSingleWidth));
  if (letter == u"D") return st.Conv->ReelBin(Left(C, kDoubleWidth));
  return 0;
}

}  // namespace

void KySaisie::DecodeType(String& C, String& TYP, Integer& NB, Integer& ND) {
  ModuleState& st = State();

  // An empty code has length 0, not 1, so it counts as numeric.
  NB = Len(TYP) == 1 ? kPlainFamily : kNumericFamily;

  if (NB != kPlainFamily) {
    ND = CInt(Val(Mid(TYP, 2)));
    TYP = Left(TYP, 1);
    if (TYP != u"I" && TYP != u"N" && TYP != u"S" && TYP != u"D") {
      st.Erreur->Message(UnknownTypeText(TYP), u"DecodeType");
    }
  } else if (TYP != u"A" && TYP != u"D" && TYP != u"B") {
    // The plain family has only a number for this report, no text.
    st.Erreur->Code(55);
  }

  if (NB != kPlainFamily) {
    // Round first, format second: an "N" text is reformatted too.
    Double V = StoredNumber(st, C, TYP);
    V = st.Conv->Arrondi(V, ND);
    C = st.Conv->FormatReel(V, ND);
    return;
  }

  if (TYP == u"B") {
    st.Conv->Majuscules(C);
    // Anything but "O", a blank value included, shows as a no.
    C = RTrim(C) == u"O" ? u"OUI" : u"NON";
    return;
  }
  C = RTrim(C);
}

void KySaisie::CodeType(String& C, const String& T, Integer NB) {
  ModuleState& st = State();

  if (NB != kPlainFamily) {
    // An "I" value beyond 16 bits overflows here; ModDT's range check keeps
    // such values away. "N" and unknown letters keep the text as it is.
    if (T == u"I") {
      C = st.Conv->BinEntier(CInt(Val(C)));
    } else if (T == u"S") {
      C = st.Conv->BinSimple(CSng(Val(C)));
    } else if (T == u"D") {
      C = st.Conv->BinReel(Val(C));
    }
    return;
  }

  if (T == u"B") C = Left(C, 1);
}

}  // namespace ferlan
