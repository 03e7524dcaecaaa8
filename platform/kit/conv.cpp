#include "kit/conv.hpp"

#include <charconv>
#include <cmath>
#include <string>

#include "kit/binary_forms.hpp"
#include "kit/decimal_text.hpp"

namespace ferlan::kit {

namespace {

bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

String WithoutLast(String s, Long n) {
  if (n > 0) s.resize(n >= Len(s) ? 0 : s.size() - static_cast<std::size_t>(n));
  return s;
}

}  // namespace

String Conv::FormatReel(Double V, Integer ND) { return FixedText(V, ND); }

Double Conv::Arrondi(Double V, Integer ND) { return RoundDecimals(V, ND); }

String Conv::Cadre(String S, Integer L, Integer /*N*/) {
  if (Len(S) < L) S += Space(L - Len(S));
  return S;
}

String Conv::Elague(String S) { return RTrim(S); }

String Conv::EntierTexte(Long V, Integer L) {
  // Zeros, not blanks, fill the places: a font's digits share one width
  // where a blank is narrower, and the status line, drawn again without
  // being erased, must cover the last one exactly.
  char digits[16];
  const char* const end = std::to_chars(digits, digits + sizeof digits, V).ptr;
  const char* first = digits;
  String text;
  if (V < 0) text += *first++;
  const Long count = static_cast<Long>(end - digits);
  if (count < L) text.append(static_cast<std::size_t>(L - count), u'0');
  text.append(first, end);
  return text;
}

Integer Conv::LongUtile(String& S) {
  S = RTrim(S);
  return ToInteger(Len(S));
}

void Conv::Majuscules(String& S) { S = UCase(S); }

Double Conv::Puissance(Double Base, Double Expo) { return std::pow(Base, Expo); }

Boolean Conv::NombreValide(const String& S, Integer ND) {
  const String text = Trim(S);
  std::size_t i = 0;
  if (i < text.size() && (text[i] == u'+' || text[i] == u'-')) ++i;
  std::size_t digits = 0;
  while (i < text.size() && IsDigit(text[i])) {
    ++i;
    ++digits;
  }
  long decimals = 0;
  if (i < text.size() && text[i] == u'.') {
    ++i;
    while (i < text.size() && IsDigit(text[i])) {
      ++i;
      ++decimals;
    }
  }
  if (text.empty()) return true;  // a blank numeric field stands for 0
  return i == text.size() && digits + static_cast<std::size_t>(decimals) > 0 &&
         decimals <= (ND > 0 ? ND : 0);
}

String Conv::BinEntier(Integer V) { return IntegerToBinary(V); }
String Conv::BinSimple(Single V) { return SingleToBinary(V); }
String Conv::BinReel(Double V) { return DoubleToBinary(V); }
Integer Conv::EntierBin(const String& S) { return BinaryToInteger(S); }
Single Conv::SimpleBin(const String& S) { return BinaryToSingle(S); }
Double Conv::ReelBin(const String& S) { return BinaryToDouble(S); }

Variant Conv::Maxi(const Variant& A, const Variant& B) {
  return VariantToDouble(B) > VariantToDouble(A) ? B : A;
}

void Conv::Tronque(String& S, Long N) { S = WithoutLast(std::move(S), N); }

String Conv::SansFin(String S, Long N) { return WithoutLast(std::move(S), N); }

Boolean Conv::FinitPar(String S, String Fin) {
  return S.size() >= Fin.size() && S.compare(S.size() - Fin.size(), Fin.size(), Fin) == 0;
}

Boolean Conv::EstRacine(String Racine, const String& Texte) {
  return Texte.size() >= Racine.size() && Texte.compare(0, Racine.size(), Racine) == 0;
}

String Conv::SansRacine(const String& Texte, const String& Racine) {
  if (!EstRacine(Racine, Texte)) return Texte;
  return Texte.substr(Racine.size());
}

}  // namespace ferlan::kit
