// Conv: conversions and small tests on numbers and texts. docs/kit.md gives
// the choices: text of FormatReel, ties of Arrondi, the binary forms, what
// NombreValide accepts.
#pragma once

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::kit {

class Conv : public ferlan::Conv {
 public:
  // "-1234.50": point, ND decimals, no thousands separator.
  String FormatReel(Double V, Integer ND) override;
  // Ties away from zero, on the decimal text of V.
  Double Arrondi(Double V, Integer ND) override;
  // Blanks added up to L characters; a longer S is kept whole; N is unused.
  String Cadre(String S, Integer L, Integer N) override;
  String Elague(String S) override;
  // V right-aligned with blanks in L places; a longer number is kept whole.
  String EntierTexte(Long V, Integer L) override;
  Integer LongUtile(String& S) override;
  void Majuscules(String& S) override;
  Double Puissance(Double Base, Double Expo) override;
  // A plain number with at most ND decimals: blanks around, an optional sign,
  // digits with an optional point. An empty or blank text is valid.
  Boolean NombreValide(const String& S, Integer ND) override;
  String BinEntier(Integer V) override;
  String BinSimple(Single V) override;
  String BinReel(Double V) override;
  Integer EntierBin(const String& S) override;
  Single SimpleBin(const String& S) override;
  Double ReelBin(const String& S) override;
  // The greater of two numbers, as it came; A when they are equal.
  Variant Maxi(const Variant& A, const Variant& B) override;
  // Removes the last N characters; N <= 0 changes nothing.
  void Tronque(String& S, Long N) override;
  String SansFin(String S, Long N) override;
  Boolean FinitPar(String S, String Fin) override;
  Boolean EstRacine(String Racine, const String& Texte) override;
  // Texte without Racine in front, or Texte as it is when it does not begin
  // with Racine.
  String SansRacine(const String& Texte, const String& Racine) override;
};

}  // namespace ferlan::kit

FERLAN_PUBLIC_END
