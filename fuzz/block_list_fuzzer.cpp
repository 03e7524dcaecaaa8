// AffBloc under arbitrary lists, on a headless session. Invariants checked:
// the list is consumed; a list that fails the syntax check is reported once,
// with the text before and from the wrong character in their places, and is
// drawn all the same; the only platform error is the subscript error of a
// 101st line, and it comes exactly when the list has more than 100 lines.
#include <cstddef>
#include <cstdint>

#include "ferlan/kysaisie.hpp"
#include "fuzz_text.hpp"
#include "headless/session.hpp"
#include "kit/chaines.hpp"

using ferlan::String;
using ferlan::fuzz::Fail;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  // The first byte chooses the options, the rest is the list.
  const std::uint8_t options = data[0];
  const String original = ferlan::fuzz::TextOf(data + 1, size - 1);

  ferlan::kit::Chaines chaines;
  ferlan::Boolean valid = false;
  ferlan::Long position = 0;
  chaines.ListeValide(original, valid, position);
  const ferlan::Long lines = chaines.NbElements(original);

  ferlan::headless::Session session;
  ferlan::KySaisie ky;
  ky.AffPos(2, 1);
  String list = original;
  bool too_many = false;
  try {
    ky.AffBloc(u"N", list, (options & 1) != 0 ? String(u"N") : String(u"O"), (options & 2) != 0,
               (options & 4) != 0, (options & 8) != 0);
    if (list != u"[]") Fail("the list was not consumed");
  } catch (const ferlan::PlatformError& e) {
    if (e.Number() != 9) Fail("a platform error other than a 101st line");
    too_many = true;
  }
  if (too_many != (lines > 100)) Fail("the limit of 100 lines");

  std::size_t syntax_reports = 0;
  for (const auto& report : session.Records().reports) {
    if (report.source == u"Couleur") continue;  // a coloured line's unknown code
    if (report.source != u"AffBloc") Fail("an unexpected report");
    ++syntax_reports;
    const std::size_t cut = static_cast<std::size_t>(position - 1);
    const String expected = u"Erreur de Syntaxe Liste : @ " + ferlan::NumberText(position) +
                            u"ème Caractère :@" + original.substr(0, cut) +
                            u"@ ** Correct jusque là ** @" + original.substr(cut) +
                            u"@** Incorrect à partir de là **@";
    if (report.text != expected) Fail("the syntax report's text");
  }
  if (syntax_reports != (valid ? 0u : 1u)) Fail("one syntax report for a list that fails");
  return 0;
}
