// Screen definitions under arbitrary texts, read by Dorvi and laid out on a
// headless host brought back to its first state before each. Invariants checked:
// - reading ends, and either completes or stops with a platform error: 6 for
//   a number beyond its type, 9 for a 41st field; nothing else escapes;
// - a completed read leaves "[]" in the definition, at most 40 records, all
//   on absolute lines with a colour, and reports exactly one "Commande @...@
//   Inconnue @" from "DORVI" for each unknown command, reading going on;
// - a stopped read with 9 has filled all 40 records.
#include <cstddef>
#include <cstdint>

#include "component/module_state.hpp"
#include "fuzz_text.hpp"
#include "headless/session.hpp"

using ferlan::Long;
using ferlan::String;
using ferlan::fuzz::Fail;

namespace {

// The commands of a definition that Dorvi does not know, counted from the
// list's elements by the reading rules: "COL" first (three capitals), then
// "COUL", then "NReDim" on six letters in any case.
Long UnknownCommands(ferlan::Chaines& chaines, String list) {
  Long unknown = 0;
  while (list != u"[]") {
    const String element = chaines.Suivant(list);
    if (!element.starts_with(u'@')) continue;
    const String command = element.substr(1);
    if (command.starts_with(u"COL") || command.starts_with(u"COUL")) continue;
    if (ferlan::UCase(ferlan::Left(command, 6)) == u"NREDIM") continue;
    ++unknown;
  }
  return unknown;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // A definition is one element or more; keep runs short.
  if (size > 4096) return 0;
  const String text = ferlan::fuzz::TextOf(data, size);
  // One host for the whole run, brought back to its first sizes and emptied
  // before each input, so that inputs stay independent.
  static ferlan::headless::Session session;
  static const ferlan::Single sizes[] = {session.Form().Width(), session.Form().Height(),
                                         session.Surface().Width(), session.Surface().Height(),
                                         session.Surface().Left(), session.Surface().Top()};
  session.Form().SetWidth(sizes[0]);
  session.Form().SetHeight(sizes[1]);
  session.Surface().SetWidth(sizes[2]);
  session.Surface().SetHeight(sizes[3]);
  session.Surface().SetLeft(sizes[4]);
  session.Surface().SetTop(sizes[5]);
  session.Records().Clear();
  session.Recorder().TakeLog();
  session.Surface().Cls();
  ferlan::ModuleState& st = ferlan::State();
  String definition = text;
  try {
    ferlan::KySaisie{}.Dorvi(definition);
  } catch (const ferlan::PlatformError& e) {
    if (e.Number() == 9 && st.NbRub != 40) Fail("error 9 before the table was full");
    if (e.Number() != 6 && e.Number() != 9) Fail("a platform error other than 6 or 9");
    return 0;
  }
  if (definition != u"[]") Fail("the definition was not consumed");
  if (st.NbRub < 0 || st.NbRub > 40) Fail("NbRub outside 0 to 40");
  for (Long i = 1; i <= st.NbRub; ++i) {
    const ferlan::RubRecord& r = st.Rub[static_cast<std::size_t>(i)];
    if (r.L < 0) Fail("a line left relative after the layout");
    if (r.Coul.Trimmed().empty()) Fail("a colour left empty after the layout");
  }
  Long reported = 0;
  for (const auto& report : session.Records().reports) {
    if (report.source != u"DORVI") continue;
    if (!report.text.starts_with(u"Commande @") || !report.text.ends_with(u"@ Inconnue @")) {
      Fail("a DORVI report with another text");
    }
    ++reported;
  }
  // Past its limit the record counts reports instead of keeping them.
  const Long unknown = UnknownCommands(*st.Chaines, text);
  const auto dropped = static_cast<Long>(session.Records().dropped);
  if (reported > unknown || reported + dropped < unknown) Fail("unknown commands not all reported");
  return 0;
}
