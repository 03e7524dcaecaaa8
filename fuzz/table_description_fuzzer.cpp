// AffTab under arbitrary column descriptions, on a headless session.
// Invariants checked: the description is consumed; one title box per column
// and one cell per column and row, drawn column by column; every column is
// found again by CTab from its identifier cut at 20 characters; the only
// report is a table too wide, the only platform error an overflow of a width.
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
  // The first byte is the number of rows, the rest the description.
  const ferlan::Long rows = data[0] % 8;
  const String original = ferlan::fuzz::TextOf(data + 1, size - 1);
  ferlan::kit::Chaines chaines;
  const ferlan::Long columns = chaines.NbElements(original);

  ferlan::headless::Session session;
  ferlan::KySaisie ky;
  ky.AffPos(3, 1);
  session.Recorder().TakeLog();
  String list = original;
  try {
    ky.AffTab(rows, list);
  } catch (const ferlan::PlatformError& e) {
    if (e.Number() != 6) Fail("a platform error other than an overflow");
    return 0;
  }
  if (list != u"[]") Fail("the description was not consumed");
  if (ky.NLTab() != rows) Fail("NLTab");
  if (ky.LTab(0) != 3) Fail("LTab(0) is not the titles' line");

  // A wide table draws more calls than the log keeps: the oldest are then
  // dropped and counted, and the log may begin inside a column.
  const auto dropped = static_cast<ferlan::Long>(session.Recorder().Dropped());
  ferlan::Long titles = 0;
  ferlan::Long cells = 0;
  ferlan::Long cells_of_this_column = dropped > 0 ? -1 : rows;  // -1: not known
  for (const auto& call : session.Recorder().TakeLog()) {
    if (call.name == "Cadre3D") {
      if (cells_of_this_column != rows && cells_of_this_column != -1) {
        Fail("a column's cells are not all under its title");
      }
      ++titles;
      cells_of_this_column = 0;
    } else if (call.name == "Rectangle") {
      ++cells;
      if (cells_of_this_column != -1) ++cells_of_this_column;
    }
  }
  if (cells_of_this_column != rows && cells_of_this_column != -1) Fail("the last column's cells");
  // With nothing dropped, these bounds leave exactly one box a title or cell.
  if (titles > columns || cells > columns * rows ||
      titles + cells + dropped < columns * (rows + 1)) {
    Fail("boxes drawn and dropped");
  }

  // Column by column with Suivant, which agrees with Element: reading each
  // column with Element would cost the square of a wide table's length.
  String rest = original;
  for (ferlan::Long i = 1; i <= columns; ++i) {
    String description = chaines.Suivant(rest);
    const String ident = ferlan::Left(chaines.Suivant(description), 20);
    try {
      ky.CTab(ident);
    } catch (const ferlan::PlatformError&) {
      Fail("CTab of a column of the table");
    }
  }
  for (const auto& report : session.Records().reports) {
    if (report.source == u"AFFTAB" && report.text.rfind(u"Tableau Trop Large : ", 0) == 0) continue;
    Fail("an unexpected report");
  }
  return 0;
}
