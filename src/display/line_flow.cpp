// Writing line after line, as on a terminal, with a page change when the
// flow passes line NbLigne - 1. The page change is silent: no pause, no
// prompt, and what stood on the surface is gone.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

void KySaisie::AffLig(const String& C, const String& Mes, Long* L) {
  // The caller's L is the working variable itself, as a ByRef would be: on
  // a platform error it holds whatever the flow had reached.
  Long l_unused = 0;
  Long& line = L != nullptr ? *L : l_unused;
  Long column = 0;

  KySaisie{}.PosAff(&line, &column);
  // In the middle of a line the text continues it, and the line below is
  // the one cleared. The display position does not move here.
  if (column != 1) line = AddLng(line, 1);
  if (line > SubInt(KySaisie{}.NbLigne(), 1)) {
    KySaisie{}.EffaceEcran(false);
    line = 1;
    KySaisie{}.AffPos(1, 1);
  }
  KySaisie{}.EffaceLigne(ToInteger(line), 1);
  KySaisie{}.Aff(C, Mes);
  KySaisie{}.PosAff(&line);
  line = AddLng(line, 1);
  KySaisie{}.AffPos(line, 1);
}

void KySaisie::AffL(const String& M) { KySaisie{}.AffLig(u"N", M); }

void KySaisie::AffSL(Integer N) {
  for (int i = 1; i <= N; ++i) KySaisie{}.AffL(u"");
}

}  // namespace ferlan
