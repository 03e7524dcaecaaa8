// The calculator under arbitrary texts, as expressions and as Formes.
// Invariants checked: nothing crashes or hangs; a result without exponent is
// itself an expression that works out to the same text (15 digits read back
// exactly); a result is never "-0".
#include <cstddef>
#include <cstdint>

#include "fuzz_text.hpp"
#include "kit/calcul.hpp"

using ferlan::String;
using ferlan::fuzz::Fail;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const String text = ferlan::fuzz::TextOf(data, size);
  ferlan::kit::Calcul calcul;

  String unused;
  calcul.Evalue(text, unused);  // any text as a Forme: False or a result, nothing else

  String forme;
  if (!calcul.Analyse(text, forme)) return 0;
  String result;
  if (!calcul.Evalue(forme, result)) return 0;
  if (result.empty()) Fail("empty result");
  if (result == u"-0") Fail("negative zero");
  if (result.find(u'E') != String::npos) return 0;

  String again_forme;
  String again;
  if (!calcul.Analyse(result, again_forme)) Fail("result does not read as an expression");
  if (!calcul.Evalue(again_forme, again)) Fail("result does not work out");
  if (again != result) Fail("result does not read back as itself");
  return 0;
}
