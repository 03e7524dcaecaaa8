// A block of lines centred as a whole below the current line, with a light
// frame behind it if wanted. The block makes room for itself first, so the
// caller need not know its size. The lines are left-aligned on one edge.
#include <array>

#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {
namespace {

// Lines are held from index 1; a 101st line is a subscript error.
constexpr int kMaxBlockLines = 100;

// The syntax report: where the list stops being well formed, with what is
// correct before that point and what is not from there on. The "@" marks
// are for the reporter.
String SyntaxReport(const String& list, Long position) {
  return u"Erreur de Syntaxe Liste : @" + (u" " + NumberText(position)) +
         u"ème Caractère :@" + Left(list, SubLng(position, 1)) +
         u"@ ** Correct jusque là ** @" + Mid(list, position) +
         u"@** Incorrect à partir de là **@";
}

}  // namespace

void KySaisie::AffBloc(const String& C, String& L, const String& E, Boolean EffAv,
                       Boolean Agrand, Boolean MesCoul) {
  ModuleState& st = State();

  Boolean valid = false;
  Long position = 0;
  st.Chaines->ListeValide(L, valid, position);
  // Reported, then drawn all the same from what the list reads as.
  if (!valid) st.Erreur->Message(SyntaxReport(L, position), u"AffBloc");

  std::array<String, kMaxBlockLines + 1> lines{};
  int count = 0;
  Long widest = 0;
  while (L != u"[]") {
    if (count + 1 > kMaxBlockLines) throw PlatformError::SubscriptOutOfRange();
    String& line = lines[static_cast<std::size_t>(count + 1)];
    st.Chaines->Extrait(L, line);
    // Measured without trailing blanks, drawn with them.
    const Long width = MesCoul ? KySaisie{}.LongMesCoul(RTrim(line))
                               : CLng(KySaisie{}.LargeurTexte(RTrim(line)));
    widest = VariantToLong(st.Conv->Maxi(width, widest));
    ++count;
  }

  const Long frame = E != u"N" ? CLng(KySaisie{}.WinCol(4)) : 0;

  Long base = 0;
  if (Agrand) {
    const Long room_width = AddLng(widest, frame);
    const Long room_height = CLng(KySaisie{}.WinLigne(static_cast<Single>(count + 4)));
    base = KySaisie{}.EspaceFeuille(room_width, room_height);
  } else {
    KySaisie{}.PosAff(&base);
  }

  // With the width that holds after making room; halved toward zero.
  const Single x = static_cast<Single>(
      CLng(static_cast<Double>(CurrentZone(st).ScaleWidth()) - widest) / 2);

  if (EffAv) {
    KySaisie{}.EffaceLignes(ToInteger(AddLng(base, 1)), ToInteger(AddLng(base, count)));
    // Also takes away the frame of an earlier block, which reaches above
    // the first line.
    const PictureBoxRef zone = CurrentZoneRef(st);
    const Single top = CSng(
        static_cast<Double>(KySaisie{}.WinLigne(static_cast<Single>(AddLng(base, 1)))) -
        MulInt(4, st.Env->MargeY()));
    const Single right = CurrentZone(st).ScaleWidth();
    const Single bottom =
        KySaisie{}.WinLigne(static_cast<Single>(AddLng(AddLng(base, count), 1)));
    st.Dessin->Pave(*zone, 0, top, right, bottom, CurrentZone(st).BackColor());
  }

  // The frame before the text, one column wider on each side.
  if (E != u"N") {
    const PictureBoxRef zone = CurrentZoneRef(st);
    const Long colour = st.Env->GrisTresClair();
    const Single top = CSng(
        static_cast<Double>(KySaisie{}.WinLigne(static_cast<Single>(AddLng(base, 1)))) -
        MulInt(4, st.Env->MargeY()));
    const Single left = CSng(static_cast<Double>(x) - KySaisie{}.WinCol(1));
    const Single width = CSng(static_cast<Double>(KySaisie{}.WinCol(2)) + widest);
    const Single height = KySaisie{}.WinLigne(static_cast<Single>(count));
    st.Dessin->Rectangle(*zone, colour, top, left, width, height);
  }

  for (int i = 1; i <= count; ++i) {
    const Long line = AddLng(base, i);
    if (MesCoul) {
      // A left edge of exactly -1 centres each line for itself.
      KySaisie{}.AffMesCoul(line, lines[static_cast<std::size_t>(i)], false, x);
    } else {
      KySaisie{}.AfficheColT(line, x, C, lines[static_cast<std::size_t>(i)]);
    }
  }
}

}  // namespace ferlan
