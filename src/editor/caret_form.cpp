#include "editor/caret_form.hpp"

#include "editor/caret_bitmaps.hpp"

namespace ferlan {

CaretForm::CaretForm(ModuleState& st) : st_(st), self_(std::make_shared<CaretForm*>(this)) {
  Global& global = *st_.Global;
  std::weak_ptr<CaretForm*> weak = self_;
  auto tick = [weak](void (CaretForm::*event)()) {
    return [weak, event] {
      if (auto self = weak.lock()) ((**self).*event)();
    };
  };
  TimerCaretCligote = global.CreateTimer(tick(&CaretForm::TimerCaretCligote_Timer));
  TimerCaretCligote->SetEnabled(false);
  TimerCaretCligote->SetInterval(0);
  CaretInsertion.Picture = global.LoadPicture(CaretInsertionImage());
  CaretSurcharge.Picture = global.LoadPicture(CaretSurchargeImage());
  TimerCaret = global.CreateTimer(tick(&CaretForm::TimerCaret_Timer));
  TimerCaret->SetEnabled(false);
  TimerCaret->SetInterval(0);
}

CaretForm::~CaretForm() {
  self_.reset();
  for (const TimerRef& timer : {TimerCaretCligote, TimerCaret}) {
    if (!timer) continue;
    try {
      timer->SetInterval(0);
      timer->SetEnabled(false);
    } catch (const PlatformError&) {
      // The forms runtime may already be gone; the tick guard covers that.
    }
  }
}

void CaretForm::TimerCaret_Timer() {
  // A caret that has moved sideways shows at once, whatever the blink phase;
  // a move in PosCaretY alone does not.
  if (st_.PosCaretXPrec != st_.PosCaretX) {
    st_.CaretVisible = true;
    st_.PosCaretXPrec = st_.PosCaretX;
  }
  // Written at every tick, changed or not, each by name.
  CachedCaretControl(st_).SetLeft(static_cast<Single>(st_.PosCaretX));
  CachedCaretControl(st_).SetTop(static_cast<Single>(st_.PosCaretY));
  CachedCaretControl(st_).SetVisible(st_.CaretVisible);
}

void CaretForm::TimerCaretCligote_Timer() {
  // Blinks only while the host's form is the foreground window; the window
  // compared is always Env.KyF, also for a field drawn on KyFSubst.
  const Long active = st_.Fenetres->Active();
  if (active == CurrentForm(st_).hWnd()) {
    st_.CaretVisible = !st_.CaretVisible;
  } else {
    st_.CaretVisible = false;
  }
}

CaretForm& FeuilleCaret(ModuleState& st) {
  if (!st.Feuille_Caret) st.Feuille_Caret = std::make_unique<CaretForm>(st);
  return *st.Feuille_Caret;
}

PictureBoxRef CaretControl(ModuleState& st) {
  return FormMember<PictureBox>(CurrentForm(st), "Caret");
}

PictureBox& CachedCaretControl(ModuleState& st) {
  Form& form = CurrentForm(st);
  // A form that versions its members keeps the control it gave until they
  // change; the look-up by name runs again then, and for any other form.
  const std::uint64_t version = form.MembersVersion();
  auto& cache = st.CaretLookup;
  if (version != 0 && cache.form == &form && cache.version == version) return *cache.control;
  const std::shared_ptr<PictureBox> caret = FormMember<PictureBox>(form, "Caret");
  cache.form = version != 0 ? &form : nullptr;
  cache.version = version;
  cache.control = caret.get();
  return *caret;
}

void ChooseCaretPicture(ModuleState& st) {
  PictureBox& caret = CachedCaretControl(st);
  CaretForm& form = FeuilleCaret(st);
  caret.SetPicture(st.Insertion ? form.CaretInsertion.Picture : form.CaretSurcharge.Picture);
}

void StopCaret(ModuleState& st) {
  CaretForm& form = FeuilleCaret(st);
  form.TimerCaretCligote->SetInterval(0);
  form.TimerCaretCligote->SetEnabled(false);
  form.TimerCaret->SetInterval(0);
  form.TimerCaret->SetEnabled(false);
  CachedCaretControl(st).SetVisible(false);
}

}  // namespace ferlan
