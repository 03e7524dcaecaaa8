// Messages and pictures around a field: right of its entry box (AD), under
// the entry box (SD) and under the label (SR).
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"
#include "ferlan/runtime.hpp"
#include "screens/field_lookup.hpp"

namespace ferlan {

namespace {

// One column right of the entry box, unrounded.
Single RightOfField(const RubRecord& rec) {
  return CSng(static_cast<Double>(rec.CzT) + static_cast<Double>(rec.LzT) +
              static_cast<Double>(KySaisie{}.WinCol(1)));
}

// The line under the field is cleared from under the label, or from column 1
// when the whole line goes.
void EraseLineBelow(const RubRecord& rec, Boolean whole_line) {
  const Integer below = AddInt(rec.L, 1);
  if (whole_line) {
    KySaisie{}.EffaceLigne(below, 1);
  } else {
    KySaisie{}.EffaceLigneColT(below, rec.ClT);
  }
}

}  // namespace

void KySaisie::PosAD(const String& I, Single& Y, Single& X) {
  const RubRecord rec = screens::FieldRecord(State(), I);
  X = RightOfField(rec);
  Y = KySaisie{}.WinLigne(rec.L);
}

void KySaisie::MesAD(const String& I, const String& C, const String& Mes) {
  const RubRecord rec = screens::FieldRecord(State(), I);
  const Single X = RightOfField(rec);
  // The rest of the line goes, from half a column left of the message: a
  // second field on that line goes with it.
  KySaisie{}.EffaceLigneColT(
      rec.L, CSng(static_cast<Double>(X) - static_cast<Double>(KySaisie{}.WinCol(0.5))));
  KySaisie{}.AfficheColT(rec.L, X, C, Mes);
}

void KySaisie::ImageAD(const String& I, PictureBoxRef C) {
  ModuleState& st = State();
  const RubRecord rec = screens::FieldRecord(st, I);
  const Long X = CLng(RightOfField(rec));
  KySaisie{}.EffaceLigneColT(rec.L, static_cast<Single>(X));

  // The erase above happens whatever C holds; reading its picture fails
  // after it.
  if (!C) throw PlatformError::ObjectNotSet();
  const PictureRef picture = C->Picture();
  if (!picture) throw PlatformError::ObjectNotSet();
  const Double W =
      static_cast<Double>(X) + static_cast<Double>(picture->Width()) + st.Env->MargeX();
  if (W > CurrentZone(st).ScaleWidth()) {
    // The surface grows before the picture is painted.
    KySaisie{}.DimensionFeuilleLT(KySaisie{}.NbLigne(), CSng(W), false);
  }
  CurrentZone(st).PaintPicture(picture, static_cast<Single>(X), KySaisie{}.WinLigne(rec.L));
}

void KySaisie::MesSD(const String& I, const String& C, const String& Mes,
                     Boolean EffLigneEntière) {
  const RubRecord rec = screens::FieldRecord(State(), I);
  // Erased from under the label, though the message stands under the box.
  EraseLineBelow(rec, EffLigneEntière);
  KySaisie{}.AfficheColT(AddInt(rec.L, 1), rec.CzT, C, Mes);
}

void KySaisie::ImageSD(const String& I, PictureBoxRef C) {
  const RubRecord rec = screens::FieldRecord(State(), I);
  const Integer below = AddInt(rec.L, 1);
  KySaisie{}.EffaceLigne(below, 1);
  // The host's control itself moves; it stays until the host hides it.
  if (!C) throw PlatformError::ObjectNotSet();
  C->SetVisible(true);
  C->SetLeft(rec.CzT);
  C->SetTop(KySaisie{}.WinLigne(below));
}

void KySaisie::MesSR(const String& I, const String& C, const String& Mes, Boolean EffLigneEntière,
                     Boolean EffRien) {
  const RubRecord rec = screens::FieldRecord(State(), I);
  if (!EffRien) EraseLineBelow(rec, EffLigneEntière);
  KySaisie{}.AfficheColT(AddInt(rec.L, 1), rec.ClT, C, Mes);
}

}  // namespace ferlan
