// Modif, the field editor: one blocking call edits one line of text in place
// on the surface, with a caret, until a leaving key ends it. Set-up, then one
// pass per key (scroll, status, draw, wait, command), then the end. The
// commands are in key_commands.cpp, the field kinds in date_rules.cpp and
// yes_no_rules.cpp, the caret in caret_form.cpp.
#include <string>

#include "component/module_state.hpp"
#include "editor/caret_form.hpp"
#include "editor/caret_placement.hpp"
#include "editor/edit_state.hpp"
#include "editor/field_kinds.hpp"
#include "editor/key_commands.hpp"
#include "ferlan/assert.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {
namespace {

// The character that a host puts first to hide a value; the library never
// writes it.
constexpr char16_t kHiddenMark = u'\x01';
// Shown last in a text cut to fit its field.
constexpr Long kCutMark = 22;
constexpr Integer kInfiniteLength = 1000;
// The mask of "I": one bullet, code 149 of the code page, per character.
constexpr Long kBullet = 149;

String Bullets(Long count) {
  String out;
  const String bullet = Chr(kBullet);
  for (Long i = 0; i < count; ++i) out += bullet;
  return out;
}

void SetUp(EditState& e) {
  KySaisie ky;
  e.TR = 0;
  if (e.KyFSubst) {
    e.AvecSubst = true;
    e.ZoneGardee = e.st.Env->ZoneAff();
  }
  // With "Infini" the window is LCM + 1 columns: CMax is C + LCM, not
  // C + LCM - 1. Otherwise it ends at the right edge of the surface.
  if (e.IMS == u"Infini") {
    e.LC = kInfiniteLength;
    e.CMax = AddInt(e.C, e.LCM);
    const Integer nb_col = ky.NbCol();
    if (e.CMax > nb_col) e.CMax = nb_col;
  } else {
    e.LC = e.LCM;
    e.CMax = ky.NbCol();
  }
  // A date field of 3 or 6 characters ends on a separator, which would type
  // itself there again and again without a key ever being read: the caller
  // owes a date field at least 7 characters, and is told so.
  if (IsDateField(e) && (e.LC == 3 || e.LC == 6)) {
    throw PlatformError::InvalidCall("a date field of " + std::to_string(e.LC) +
                                     " characters ends on its separator");
  }
  ChooseCaretPicture(e.st);
  // LongUtile also takes the trailing blanks off CH.
  e.LU = e.st.Conv->LongUtile(e.CH);
  // Col is written back at once: the caller sees it even if the edit is abandoned.
  if (e.Col > e.LC) e.Col = e.LC;
  // A text that doesn't fit keeps LC - 1 characters and a visible mark.
  if (e.LU > e.LC) {
    e.CH = Left(e.CH, SubInt(e.LC, 1)) + Chr(kCutMark);
    e.LU = e.LC;
  }
  e.CH = e.st.Conv->Cadre(e.CH, e.LC, 0);
  // How many characters fit between C and CMax.
  if (SubInt(AddInt(e.C, e.LC), 1) <= e.CMax) {
    e.NbVis = e.LC;
  } else {
    e.NbVis = SubInt(AddInt(e.CMax, 1), e.C);
  }
  e.Decal = 0;
  e.Premier = true;
  e.Fin = e.LC == 0;
  // Where the caret starts.
  if (e.IMS == u"V") {
    e.P = AddInt(e.LU, 1);
    if (e.P > e.LC) e.P = e.LC;
  } else if (e.IMS == u"E") {
    e.P = e.Col;
  } else {
    e.P = 1;
  }
}

// Keeps the caret's column inside the window before each key.
void Scroll(EditState& e) {
  auto decal_at_right_edge = [&] { return SubInt(SubInt(AddInt(e.C, e.P), e.CMax), 1); };
  const Integer caret_column = SubInt(SubInt(AddInt(e.C, e.P), 1), e.Decal);
  if (caret_column > e.CMax) {
    e.Decal = decal_at_right_edge();  // the caret rests on column CMax
  } else if (SubInt(SubInt(e.P, 1), e.Decal) >= 0) {
    // In the window: Decal stays.
  } else if (SubInt(AddInt(e.C, e.P), 1) > e.CMax) {
    // Gone left of the window: it jumps to the right edge, not the left.
    e.Decal = decal_at_right_edge();
  } else {
    e.Decal = 0;
  }
}

// Shows "Curseur nnn" centred on the line above the last, on the main
// surface, never erased first.
void ShowStatus(EditState& e) {
  KySaisie ky;
  const Integer line = SubInt(ky.NbLigne(), 1);
  Long col_fin = 0;
  ky.AfficheCentre(line, u"N", u"Curseur " + e.st.Conv->EntierTexte(e.P, 3), false, &col_fin);
}

// Erases the zone and draws the part of the text the window shows.
void DrawField(EditState& e) {
  KySaisie ky;
  OnFieldSurface(e, [&] {
    ky.EffaceZoneSaisie(e.LT, e.CzT, e.LzT, -1, nullptr);
    // Masked entry shows one bullet per character between the outer blanks.
    String bullets;
    if (e.IMS == u"I") bullets = Bullets(Len(Trim(e.CH)));
    const String& source = e.IMS == u"I" ? bullets : e.CH;
    // Copied into the room TexteVu already has.
    e.TexteVu.assign(MidView(source, AddInt(e.Decal, 1), e.NbVis));
    ky.AfficheT(CLng(e.LT), e.CT, e.Coul, e.TexteVu);
  });
}

// The end: the text goes back to its start, in black, and loses its trailing
// blanks. With "I" nothing is drawn and the bullets stay.
void End(EditState& e) {
  KySaisie ky;
  if (!IsHidden(e) && e.IMS != u"I") {
    OnFieldSurface(e, [&] {
      const Long colour = e.Coul != u"B" ? e.st.Env->Blanc() : Long{-1};
      ky.EffaceZoneSaisie(e.LT, e.CzT, e.LzT, colour, nullptr);
      ky.AfficheT(CLng(e.LT), e.CT, u"N", Left(e.CH, e.NbVis));
    });
  }
  e.st.Conv->LongUtile(e.CH);
  e.Col = e.P;
}

}  // namespace

Boolean IsHidden(const EditState& e) { return !e.CH.empty() && e.CH.front() == kHiddenMark; }

void BlankZone(EditState& e) {
  OnFieldSurface(e, [&] { KySaisie{}.EffaceZoneSaisie(e.LT, e.CzT, e.LzT, -1, nullptr); });
}

void KySaisie::Modif(Single LT, Integer C, Single CT, Integer LCM, Single LzT, Single CzT,
                     const String& TV, String& CH, Integer& TR, const String& IMS, Integer* Col,
                     const String& Coul, PictureBoxRef KyFSubst, Single CaretX, Single CaretY) {
  // Col is optional: when it is left out, its default 0 goes in and nothing
  // comes back.
  Integer absent_col = 0;
  Integer& col = Col ? *Col : absent_col;
  EditState e{State(), LT,    C, CT, LCM, LzT, CzT, TV, CH, TR, IMS, col, Coul, std::move(KyFSubst),
              CaretX,  CaretY};
  SetUp(e);
  // Set-up leaves the text filling the field exactly. Later the host may
  // change its own variable during a wait, so this holds only here.
  FERLAN_ASSERT(e.Fin || Len(e.CH) == e.LC);
  while (!e.Fin) {
    // The caret stays in the field; only a host's Col below 1 in mode "E"
    // starts it left of it, and the repeat default's Mid then refuses it.
    FERLAN_ASSERT(e.P <= e.LC && (e.P >= 1 || e.IMS == u"E"));
    Scroll(e);
    ShowStatus(e);
    if (!IsHidden(e)) DrawField(e);
    if (DateSeparatorDue(e)) {
      // A date's separator types itself: no key is read and the caret doesn't appear.
      e.R = u"/";
      e.Code = 0;
    } else {
      // Repeat default: Ctrl+R leaves R alone, so it types again the
      // character left of the caret.
      e.R = e.P > 1 ? Mid(e.CH, SubInt(e.P, 1), 1) : Mid(e.CH, e.P, 1);
      PlaceAndStartCaret(e);
      Saisie(e.R, &e.Code);
      // Abandon: leave at once. TR stays 0, CH keeps its padded form, Col is
      // not written, nothing is drawn and the caret's timers keep running.
      if (e.st.Env->Abandon()) return;
      StopCaret(e.st);
    }
    CarryOutKey(e);
    // After a real key the chance to blank the field is gone; after a
    // virtual key it stays.
    e.Premier = e.st.Env->ToucheVirtuelle();
  }
  End(e);
}

}  // namespace ferlan
