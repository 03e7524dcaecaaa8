// Saving and restoring whole screens. The visible level (MemEcr, ResEcr)
// keeps nothing itself: the caption, places and sizes go to Pile and the
// picture to Dessin. The entry level (MemEcrSais, ResEcrSais) adds the record
// table, five screens deep, and one copy of the column table.
#include <cstddef>

#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {
namespace {

// Upper bound of the first index of sES: five screens, index 0 unused.
constexpr Integer kLastSavedScreen = 5;

// A number popped from Pile, through a Long as the caller's variable is one:
// fractions of a saved place or size come back rounded.
Single PopLong(ModuleState& st) {
  Variant v = Long{0};
  st.Pile->Depile(v);
  return static_cast<Single>(VariantToLong(v));
}

// Element `i` of a fixed or dynamic array, checked as the platform checks
// array bounds.
template <class Array>
auto& At(Array& array, Long i) {
  if (i < 0 || static_cast<std::size_t>(i) >= array.size()) {
    throw PlatformError::SubscriptOutOfRange();
  }
  return array[static_cast<std::size_t>(i)];
}

// `to` made anew with elements 0 to `count`, and 1 to `count` copied from
// `from`; what `to` held before is lost.
void CopyColumns(std::vector<ColonneRecord>& to, const std::vector<ColonneRecord>& from,
                 Long count) {
  if (count < 0) throw PlatformError::SubscriptOutOfRange();
  std::vector<ColonneRecord> fresh(static_cast<std::size_t>(count) + 1);
  for (Long i = 1; i <= count; ++i) At(fresh, i) = At(from, i);
  to = std::move(fresh);
}

}  // namespace

void KySaisie::MemEcr() {
  ModuleState& st = State();
  st.Pile->Empile(CurrentForm(st).Caption());
  st.Pile->Empile(CurrentForm(st).Top());
  st.Pile->Empile(CurrentForm(st).Left());
  st.Pile->Empile(CurrentForm(st).Width());
  st.Pile->Empile(CurrentForm(st).Height());
  st.Dessin->MemImage(CurrentZone(st));
  st.Pile->Empile(CurrentZone(st).Top());
  st.Pile->Empile(CurrentZone(st).Left());
  st.Pile->Empile(CurrentZone(st).Width());
  st.Pile->Empile(CurrentZone(st).Height());
}

void KySaisie::ResEcr() {
  ModuleState& st = State();
  // The surface gets its size back before its picture.
  CurrentZone(st).SetHeight(PopLong(st));
  CurrentZone(st).SetWidth(PopLong(st));
  CurrentZone(st).SetLeft(PopLong(st));
  CurrentZone(st).SetTop(PopLong(st));
  st.Dessin->ResImage(CurrentZone(st));
  if (CurrentForm(st).WindowState() == 0) {
    CurrentForm(st).SetHeight(PopLong(st));
    CurrentForm(st).SetWidth(PopLong(st));
    CurrentForm(st).SetLeft(PopLong(st));
    CurrentForm(st).SetTop(PopLong(st));
  } else {
    // A minimised or maximised form keeps its size; the four values are
    // dropped all the same, so that the stack stays in step.
    for (int i = 0; i < 4; ++i) PopLong(st);
  }
  Variant caption = String{};
  st.Pile->Depile(caption);
  CurrentForm(st).SetCaption(VariantToString(caption));
}

void KySaisie::MemEcrSais() {
  ModuleState& st = State();
  MemEcr();
  if (st.nES == kLastSavedScreen) {
    // Pile now stands one save deeper than sES; the saved table is kept.
    st.Erreur->Message(u"Matrice de Sauvegarde @sES()@ des Ecrans de Saisie est @ Saturée @ - @" +
                           NumberText(st.nES) + u"  Mémorisations on déjà été Effectuées",
                       u"MemEcrSais");
    return;
  }
  st.nES = AddInt(st.nES, 1);
  At(st.sNbRub, st.nES) = st.NbRub;
  auto& saved = At(st.sES, st.nES);
  for (Long i = 1; i <= st.NbRub; ++i) At(saved, i) = At(st.Rub, i);
  // One level only: a nested save overwrites the table saved before it.
  st.sNbColonnes = st.NbColonnes;
  st.sLigneTable = st.LigneTable;
  st.sNbLignesTable = st.NbLignesTable;
  CopyColumns(st.sColonnes, st.Colonnes, st.NbColonnes);
}

void KySaisie::ResEcrSais() {
  ModuleState& st = State();
  ResEcr();
  if (st.nES == 0) {
    st.Erreur->Message(
        u"Matrice de Sauvegarde @sES()@ des Ecrans de Saisie est @Vide@ Aucune Restitution "
        u"n'est Possible",
        u"ResEcrSais");
    return;
  }
  st.NbRub = At(st.sNbRub, st.nES);
  At(st.sNbRub, st.nES) = 0;
  // Records beyond the saved count stay in Rub, hidden by NbRub.
  const auto& saved = At(st.sES, st.nES);
  for (Long i = 1; i <= st.NbRub; ++i) At(st.Rub, i) = At(saved, i);
  st.nES = SubInt(st.nES, 1);
  Centrage(CurrentZoneRef(st), 0);
  st.NbColonnes = st.sNbColonnes;
  st.LigneTable = st.sLigneTable;
  st.NbLignesTable = st.sNbLignesTable;
  // sColonnes keeps its copy: every level restores the last saved table.
  CopyColumns(st.Colonnes, st.sColonnes, st.sNbColonnes);
}

}  // namespace ferlan
