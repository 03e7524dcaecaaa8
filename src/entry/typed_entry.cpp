// Typed entry: a stored value shown in a field, edited with Modif until its
// text is acceptable for its type code, and given back in stored form.
//
// Env.SaisieOK is the loop's flag and lives in the environment, not in a
// local: the host may read it during the wait and after the entry.
#include <optional>
#include <utility>

#include "component/module_state.hpp"
#include "entry/numeric_check.hpp"
#include "ferlan/kysaisie.hpp"
#include "ferlan/runtime.hpp"

namespace ferlan {

namespace {

// Only these four keys may give up an unacceptable text for the old value;
// Enter and the function keys bring the editor back instead.
Boolean IsLeavingKey(Env& env, Integer TR) {
  return TR == env.ToucheHaut() || TR == env.ToucheBas() || TR == env.TouchePageHaut() ||
         TR == env.TouchePageBas();
}

// The end of an entry that Env.Abandon would keep in its loop for ever: the
// value goes back exactly as the caller stored it, with TR 0.
void GiveBackStored(ModuleState& st, String& M, const String& stored_on_entry, Integer& TR) {
  M = stored_on_entry;
  TR = 0;
  st.Env->SetSaisieOK(true);
}

// The editor mode of a plain code; the numeric family edits with no mode.
String EditorMode(Integer NB, const String& T) {
  if (NB != 0) return u"";
  if (T == u"D") return u"D";
  if (T == u"B") return u"B";
  return u"C";
}

}  // namespace

void KySaisie::ModD(String& M, String TYP, Integer L, Integer C, Single CT, Integer LC, Integer& TR,
                    Long LzT, Long CzT, String IMS, Long* ORDREDATE, const String& LRacAutoNb,
                    const String& Coul) {
  Integer col = 0;
  KySaisie{}.ModDT(M, std::move(TYP), KySaisie{}.WinLigne(L), C, CT, LC, TR, LzT, CzT,
                   std::move(IMS), ORDREDATE, LRacAutoNb, Coul, nullptr, 0, 0, &col);
}

void KySaisie::ModDT(String& M, String TYP, Single LT, Integer C, Single CT, Integer LC,
                     Integer& TR, Long LzT, Long CzT, String IMS, Long* ORDREDATE,
                     const String& LRacAutoNb, const String& Coul, PictureBoxRef KyFSubst,
                     Single CaretX, Single CaretY, Integer* Col) {
  ModuleState& st = State();

  if (LzT == 0) LzT = CLng(KySaisie{}.WinCol(AddInt(LC, 2)));
  if (CzT == 0) CzT = CLng(CT);

  // The stored form as the caller gave it: what an abandoned entry returns.
  const String stored_on_entry = M;

  // DecodeType cuts the code down to its letter, so it works on a copy.
  String T = TYP;
  Integer NB = 0;
  Integer ND = 0;
  KySaisie{}.DecodeType(M, T, NB, ND);

  // A number may be an expression longer than its box: let it scroll.
  if (IMS == u"F" && NB != 0) IMS = u"Infini";
  const String TV = EditorMode(NB, T);

  st.Env->SetSaisieOK(false);
  const String Ancien = M;

  // Where the caller leaves out ORDREDATE, the date check still needs one.
  Long unused_order = 0;
  Long& order = ORDREDATE != nullptr ? *ORDREDATE : unused_order;

  // A calculator result stands in the field: the editor runs again at once,
  // whatever the flag and whatever key ended the pass.
  bool result_to_confirm = false;
  // The text that the last abandoned pass got back from Modif.
  std::optional<String> abandoned_text;

  while (result_to_confirm || !st.Env->SaisieOK()) {
    result_to_confirm = false;

    KySaisie{}.Modif(LT, C, CT, LC, static_cast<Single>(LzT), static_cast<Single>(CzT), TV, M, TR,
                     IMS, Col, Coul, KyFSubst, CaretX, CaretY);
    order = 0;

    if (NB != 0) {
      const String returned = M;
      if (entry::CheckNumeric(st, M, T, ND, LRacAutoNb) == entry::NumericOutcome::Computed) {
        // Abandoned, Modif gives back at once what it was given, padded: the
        // result is checked once more, unless it came from that same text.
        if (st.Env->Abandon()) {
          if (abandoned_text == returned) {
            GiveBackStored(st, M, stored_on_entry, TR);
            return;
          }
          abandoned_text = returned;
        }
        result_to_confirm = true;
        continue;
      }
    } else if (T == u"D") {
      if (M.empty()) {
        st.Env->SetSaisieOK(true);
      } else {
        st.Env->SetSaisieOK(st.Dates->Valide(M, order));
      }
    } else if (T == u"B") {
      st.Conv->Majuscules(M);
      st.Env->SetSaisieOK(M == u"OUI" || M == u"NON");
    } else {
      st.Env->SetSaisieOK(true);
    }

    if (st.Env->SaisieOK()) continue;
    if (!IsLeavingKey(*st.Env, TR)) {
      // Abandoned, the next pass would get the same text back and refuse it.
      if (st.Env->Abandon()) {
        GiveBackStored(st, M, stored_on_entry, TR);
        return;
      }
      continue;
    }

    // Leaving an unacceptable text: the old value comes back, on screen as
    // far as the field's width goes, and whole in M.
    M = Ancien;
    KySaisie{}.AfficheT(CLng(LT), CT, u"N", Left(M, LC));
    st.Env->SetSaisieOK(true);
  }

  KySaisie{}.CodeType(M, T, NB);
}

}  // namespace ferlan
