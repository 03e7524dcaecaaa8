// Calcul: the calculator of numeric fields. Analyse reads an arithmetic
// expression (decimal numbers with a point, + - * /, unary minus and plus,
// parentheses, blanks) into a Forme, the expression in postfix order as
// blank-separated tokens ("12 3 +", "2 neg 3 *"); Evalue works a Forme out.
// Both give False, never an error, for anything they cannot take: a text
// that is not an expression, nesting deeper than kMaxNesting, a division by
// zero, a result too large for a Double.
#pragma once

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::kit {

class Calcul : public ferlan::Calcul {
 public:
  // Parentheses and unary signs nest at most this deep.
  static constexpr int kMaxNesting = 200;

  Boolean Analyse(const String& Texte, String& Forme) override;
  // Resultat: the value with a point, up to 15 significant digits, no
  // trailing zeros ("15", "15.244901723741").
  Boolean Evalue(const String& Forme, String& Resultat) override;
};

}  // namespace ferlan::kit

FERLAN_PUBLIC_END
