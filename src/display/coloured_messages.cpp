// Coloured messages: one line made of runs, each a list of a colour code, a
// text and perhaps a size letter. Each run is drawn by Aff at the font size
// of its letter, so its box follows that size; all runs share one top.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {
namespace {

// The surface's font size for one run: the letter's factor times the size
// the surface has now. The product of two Singles is exact in a Double.
void ScaleFontForRun(ModuleState& st, String& run, Single base_size) {
  if (run == u"[]") return;
  const String letter = st.Chaines->Suivant(run);
  const Single factor = KySaisie{}.TailleMesCoul(letter);
  CurrentZone(st).Font().SetSize(
      CSng(static_cast<Double>(factor) * static_cast<Double>(base_size)));
}

}  // namespace

Single KySaisie::TailleMesCoul(const String& A) {
  // Compared exactly: a lower-case letter is no size.
  if (A == u"G") return 2.0f;
  if (A == u"S") return 1.4f;
  if (A == u"L") return 1.1f;
  return 1.0f;
}

Long KySaisie::LongMesCoul(String LM) {
  ModuleState& st = State();
  Long width = 0;
  // Each removal shortens the message, so the loop reaches "[]".
  while (LM != u"[]") {
    String run = st.Chaines->Suivant(LM);
    String colour_unused;
    st.Chaines->Extrait(run, colour_unused);
    const String text = st.Chaines->Suivant(run);
    const Single base_size = CurrentZone(st).Font().Size();
    ScaleFontForRun(st, run, base_size);
    // Rounded after every run: the total may differ by a few units from the
    // same text measured in one piece.
    width = CLng(static_cast<Double>(KySaisie{}.LargeurTexte(text)) + width);
    CurrentZone(st).Font().SetSize(base_size);
  }
  return width;
}

void KySaisie::AffMesCoul(Long L, String LM, Boolean EffAv, Single C) {
  ModuleState& st = State();
  if (EffAv) KySaisie{}.EffaceLigne(ToInteger(L), 1);

  // -1 exactly means centred; any other value, 0 included, is a left edge.
  if (C == -1) {
    const Single y = KySaisie{}.WinLigne(static_cast<Single>(L));
    const Long w = KySaisie{}.LongMesCoul(LM);
    // Rounded first, then halved toward zero: a message wider than the
    // surface starts left of it.
    const Long start = CLng(static_cast<Double>(CurrentZone(st).ScaleWidth()) - w) / 2;
    KySaisie{}.AffPosT(CLng(y), start);
  } else {
    KySaisie{}.AffPosT(CLng(KySaisie{}.WinLigne(static_cast<Single>(L))), CLng(C));
  }

  // The position is set once; Dessin.Texte carries it from run to run.
  while (LM != u"[]") {
    String run = st.Chaines->Suivant(LM);
    const String colour = st.Chaines->Suivant(run);
    const String text = st.Chaines->Suivant(run);
    const Single base_size = CurrentZone(st).Font().Size();
    ScaleFontForRun(st, run, base_size);
    KySaisie{}.Aff(colour, text);
    CurrentZone(st).Font().SetSize(base_size);
  }
}

}  // namespace ferlan
