// Drawing an empty table: a row of raised title boxes and, under each, one
// white box per row, centred on the surface. The cells stay empty; the host
// writes into them at the places CTab and LTab give. One table exists at a
// time: drawing a new one replaces the column table.
#include <cmath>

#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {
namespace {

// The box of one cell: the text at (line, first column) stands one column
// inside its left edge and in the middle of its height; cells touch.
struct CellGeometry {
  Integer step_x = 0;  // PasX: one column
  Integer step_y = 0;  // PasY: half the gap between pitch and text height

  Single Top(Long line) const {
    return CSng(static_cast<Double>(KySaisie{}.WinLigne(static_cast<Single>(line))) - step_y);
  }
  Single Left(Integer first_column) const {
    return CSng(static_cast<Double>(KySaisie{}.WinCol(first_column)) - step_x);
  }
  static Single Width(Integer columns) {
    return KySaisie{}.WinCol(static_cast<Single>(AddInt(columns, 3)));
  }
  static Single Height() { return KySaisie{}.WinLigne(1); }
};

}  // namespace

void KySaisie::AffTab(Long NL, String& L, Single MB) {
  ModuleState& st = State();
  st.NbLignesTable = ToInteger(NL);

  const Long columns = st.Chaines->NbElements(L);
  if (columns < 0) throw PlatformError::SubscriptOutOfRange();
  st.NbColonnes = columns;
  // Element 0 stays empty: CTab of an unknown identifier reads it.
  st.Colonnes.assign(static_cast<std::size_t>(columns) + 1, ColonneRecord{});

  for (Long i = 1; i <= columns; ++i) {
    ColonneRecord& column = st.Colonnes[static_cast<std::size_t>(i)];
    const String description = st.Chaines->Element(L, i);
    column.Ident = st.Chaines->Element(description, 1);
    column.TitreCol = st.Chaines->Element(description, 2);
    // Titles count in characters, widths in grid columns: the larger wins.
    const Long title_length = Len(st.Conv->Elague(column.TitreCol.Text()));
    const Double given_width = Val(st.Chaines->Element(description, 3));
    column.Larg = VariantToInteger(st.Conv->Maxi(title_length, given_width));
  }

  Long total = 0;
  if (columns > 0) {
    total = 2;
    for (Long i = 1; i <= columns; ++i) {
      total = AddLng(total, AddLng(st.Colonnes[static_cast<std::size_t>(i)].Larg, 3));
    }
  }

  // Only here does the display position move: from line 0 to line 1.
  KySaisie{}.PosAff(&st.LigneTable);
  if (st.LigneTable == 0) KySaisie{}.AffPos(1, 1);

  const Long room_width = CLng(KySaisie{}.WinCol(static_cast<Single>(AddLng(total, 2))));
  const Long room_height =
      CLng(static_cast<Double>(KySaisie{}.WinLigne(static_cast<Single>(AddLng(NL, 3)))) * 1.1 +
           MB);
  KySaisie{}.EspaceFeuille(room_width, room_height);

  // The room asked for may not have been given: reported, then drawn.
  if (total > SubLng(KySaisie{}.NbCol(), 1)) {
    st.Erreur->Message(u"Tableau Trop Large :" + (u" " + NumberText(total)), u"AFFTAB");
  }

  Integer margin = ToInteger(static_cast<long long>(
      std::floor(Divide(static_cast<Double>(SubLng(KySaisie{}.NbCol(), total)), 2))));
  if (margin == 0) margin = 1;
  Integer first_column = AddInt(margin, 2);

  KySaisie{}.PosAff(&st.LigneTable);
  CellGeometry cell;
  cell.step_y = ToInteger(
      CLng(static_cast<Double>(KySaisie{}.WinLigne(1)) - KySaisie{}.HauteurTexte()) / 2);
  cell.step_x = CInt(KySaisie{}.WinCol(1));

  // Column by column, each from its title down to its last row.
  for (Long i = 1; i <= columns; ++i) {
    ColonneRecord& column = st.Colonnes[static_cast<std::size_t>(i)];
    const Integer width = column.Larg;
    column.ColDeb = first_column;
    String taken_unused;
    st.Chaines->Extrait(L, taken_unused);

    {
      const PictureBoxRef zone = CurrentZoneRef(st);
      const Long back = st.Env->Bleu();
      const Long text_colour = st.Env->Jaune();
      const String title = st.Conv->Elague(u" " + column.TitreCol.Text());
      st.Dessin->Cadre3D(*zone, back, text_colour, title, cell.Top(st.LigneTable),
                         cell.Left(first_column), CellGeometry::Width(width),
                         CellGeometry::Height(), u"3D", 0, u"G");
    }
    for (Long row = 1; row <= NL; ++row) {
      const PictureBoxRef zone = CurrentZoneRef(st);
      const Long back = st.Env->Blanc();
      st.Dessin->Rectangle(*zone, back, cell.Top(AddLng(st.LigneTable, row)),
                           cell.Left(first_column), CellGeometry::Width(width),
                           CellGeometry::Height());
    }
    first_column = AddInt(AddInt(first_column, width), 3);
  }

  // From here on LTab(1) is the line under the titles.
  st.LigneTable = AddLng(st.LigneTable, 2);
}

}  // namespace ferlan
