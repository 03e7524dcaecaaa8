// EcrSais: turns the record table that Dorvi read into a laid-out screen.
// Three passes over the records, in order: widths and lines, label widths,
// X positions; then the form is sized, then every field is drawn. Nothing
// is erased, and the display position is only read. Afterwards every line
// is absolute and every position a real value, so a second run on the same
// table draws the same screen.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"
#include "screens/record_table.hpp"

namespace ferlan {

namespace {

using screens::MemeLigne;
using screens::RubAt;

Single Sum(Double a, Double b) { return CSng(a + b); }

// First pass: colour, entry width, absolute line; and the widest label of
// the fields that begin a line with an automatic label width (LMaxLib).
void ResolveRecord(ModuleState& st, Long i, Long& widest_label) {
  KySaisie ky;
  RubRecord& r = RubAt(st, i);
  if (r.Coul.Trimmed().empty()) r.Coul = u"I";
  // Whatever the definition said; "D2" is a number, not a date.
  const String type = r.TypeDon.Trimmed();
  if (type == u"B") {
    r.LC = 3;
  } else if (type == u"D") {
    r.LC = 10;
  }
  r.LcT = ky.WinCol(r.LC);
  r.LzT = Sum(ky.WinCol(2), r.LcT);
  if (r.L <= 0) {
    if (i == 1) {
      // The first field takes the display line, whatever its relative value.
      Long line = 0;
      ky.PosAff(&line);
      r.L = ToInteger(line);
    } else {
      r.L = SubInt(RubAt(st, i - 1).L, r.L);
    }
  }
  if (r.LlT == 0 && !MemeLigne(st, i)) {
    const Single width = ky.LargeurTexte(r.Libelle.Trimmed());
    widest_label = VariantToLong(st.Conv->Maxi(widest_label, width));
  }
}

// Second pass: an automatic label width becomes the common width for a
// field that begins a line, or its own label's width for one that follows
// on the line; one column is added in both cases.
void SizeLabel(ModuleState& st, Long i, Long widest_label) {
  KySaisie ky;
  RubRecord& r = RubAt(st, i);
  if (r.LlT != 0) return;
  if (MemeLigne(st, i)) {
    r.LlT = Sum(ky.LargeurTexte(r.Libelle.Trimmed()), ky.WinCol(1));
  } else {
    r.LlT = Sum(widest_label, ky.WinCol(1));
  }
}

// Third pass: X of the label box, of the entry box and of the text; XMax
// follows the right edge of the widest field.
void PlaceRecord(ModuleState& st, Long i, Single& x_max) {
  KySaisie ky;
  RubRecord& r = RubAt(st, i);
  const Boolean same_line = MemeLigne(st, i);
  if (r.ClT == 0) {
    if (same_line) {
      const RubRecord& previous = RubAt(st, i - 1);
      r.ClT = Sum(Sum(previous.CzT, previous.LzT), ky.WinCol(1));
    } else {
      r.ClT = ky.WinCol(1);
    }
  }
  if (r.ClT == -1) {
    // Centred on the surface's outer Width, not its ScaleWidth.
    const Single field_width = Sum(Sum(r.LlT, r.LzT), ky.WinCol(1));
    const Long room = CLng(static_cast<Double>(CurrentZone(st).Width()) - field_width);
    const Integer left = ToInteger(room / 2);  // integer division, toward zero
    r.ClT = left <= 0 ? Single{1} : static_cast<Single>(left);
  }
  r.CzT = Sum(Sum(r.ClT, r.LlT), ky.WinCol(0.4f));
  r.CT = Sum(r.CzT, ky.WinCol(0.6f));
  x_max = VariantToSingle(st.Conv->Maxi(x_max, Sum(r.CzT, r.LzT)));
}

}  // namespace

void KySaisie::EcrSais(Boolean ReDimFeuille) {
  ModuleState& st = State();
  Long widest_label = 0;  // LMaxLib
  Single x_max = 0;       // XMax
  for (Long i = 1; i <= st.NbRub; ++i) ResolveRecord(st, i, widest_label);
  for (Long i = 1; i <= st.NbRub; ++i) SizeLabel(st, i, widest_label);
  for (Long i = 1; i <= st.NbRub; ++i) PlaceRecord(st, i, x_max);

  // The last record's line, not the greatest; with an empty table that of
  // element 0, which is never filled.
  const Integer last_line = RubAt(st, st.NbRub).L;
  if (ReDimFeuille) {
    KySaisie{}.DimensionFeuilleLT(AddInt(last_line, 3), x_max, false);
  } else {
    KySaisie{}.DimensionFeuilleLT(last_line, x_max, true);
  }

  for (Long i = 1; i <= st.NbRub; ++i) KySaisie{}.GénèreControl(ToInteger(i));
}

}  // namespace ferlan
