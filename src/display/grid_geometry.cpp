// Lines and columns on a proportional-font surface. Nothing is stored: every
// metric comes from the font the surface has at the moment of the call, and
// the surface itself is fetched from Env at each statement, so a host that
// swaps Env.ZoneAff or changes the font moves the grid at once.
#include <cmath>

#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

Long KySaisie::HauteurTexte() {
  ModuleState& st = State();
  // Rounded before any scaling, so the pitch is 1.6 x a whole number.
  return CLng(CurrentZone(st).TextHeight(u" "));
}

Single KySaisie::WinLigne(Single L) {
  // The product is taken in double and rounded to Single once, at the end.
  const Double pitch_units = static_cast<Double>(KySaisie{}.HauteurTexte()) * 1.6;
  return CSng(pitch_units * static_cast<Double>(L));
}

Long KySaisie::LigneWin(Single Y) {
  // Half-way between two lines goes to the higher one (floor of x + 0.5),
  // unlike ColWin, which ties to even.
  const Double lines = Divide(static_cast<Double>(Y), KySaisie{}.WinLigne(1));
  return CLng(std::floor(lines + 0.5));
}

Single KySaisie::LargeurTexte(const String& T) {
  ModuleState& st = State();
  return CurrentZone(st).TextWidth(T);
}

Single KySaisie::WinCol(Single C) {
  ModuleState& st = State();
  const Single column_width = CurrentZone(st).TextWidth(u"T");
  return CSng(static_cast<Double>(C) * column_width);
}

Long KySaisie::ColWin(Single X) {
  return CLng(Divide(static_cast<Double>(X), KySaisie{}.WinCol(1)));
}

Integer KySaisie::NbLigne() {
  ModuleState& st = State();
  return ToInteger(KySaisie{}.LigneWin(CurrentZone(st).ScaleHeight()));
}

Integer KySaisie::NbCol() {
  ModuleState& st = State();
  return ToInteger(KySaisie{}.ColWin(CurrentZone(st).ScaleWidth()));
}

void KySaisie::PosAff(Long* L, Long* C) {
  ModuleState& st = State();
  // Left out, an argument still gets its value computed: only the writing
  // back is skipped. L is written before C is computed, as a ByRef would be.
  Long l_unused = 0;
  Long c_unused = 0;
  Long& l_out = L != nullptr ? *L : l_unused;
  Long& c_out = C != nullptr ? *C : c_unused;
  l_out = KySaisie{}.LigneWin(st.Env->CourantY());
  c_out = KySaisie{}.ColWin(st.Env->CourantX());
}

void KySaisie::AffPos(Long L, Long C) {
  const Long top = CLng(KySaisie{}.WinLigne(static_cast<Single>(L)));
  const Long left = CLng(KySaisie{}.WinCol(static_cast<Single>(C)));
  KySaisie{}.AffPosT(top, left);
}

void KySaisie::AffPosT(Long L, Long C) {
  ModuleState& st = State();
  CurrentZone(st).SetCurrentY(static_cast<Single>(L));
  CurrentZone(st).SetCurrentX(static_cast<Single>(C));
  // The display position is what the surface reports back, which may be
  // clipped or rounded, not what was asked for.
  st.Env->SetCourantY(CurrentZone(st).CurrentY());
  st.Env->SetCourantX(CurrentZone(st).CurrentX());
}

}  // namespace ferlan
