// Feuille_Caret: the component's one hidden form. The field editor paints its
// text, so it cannot use the platform's text caret; its caret is the host
// form's `Caret` picture control, moved and blinked by the two timers of this
// form, which also holds the insert and overwrite pictures. The form is never
// shown. It is created at the first Modif and kept until the apartment ends.
#pragma once

#include <memory>

#include "component/module_state.hpp"
#include "ferlan/host.hpp"

namespace ferlan {

// A picture control of the hidden form: it only holds a picture.
struct HiddenPictureControl {
  PictureRef Picture;
};

class CaretForm {
 public:
  // Loads the form: both timers stopped with interval 0, both pictures loaded.
  explicit CaretForm(ModuleState& st);
  // Stops the timers, so that no tick reaches a form that is gone.
  ~CaretForm();
  CaretForm(const CaretForm&) = delete;
  CaretForm& operator=(const CaretForm&) = delete;

  // Controls, in the order of the form.
  TimerRef TimerCaretCligote;  // blink, 500 ms while a field waits
  HiddenPictureControl CaretInsertion;
  HiddenPictureControl CaretSurcharge;
  TimerRef TimerCaret;  // follows PosCaretX/PosCaretY, 1 ms while a field waits

  // The Timer events, as the forms runtime raises them inside DoEvents.
  void TimerCaret_Timer();
  void TimerCaretCligote_Timer();

 private:
  ModuleState& st_;
  // Ticks hold a weak view of this, so a tick queued after the form is gone
  // does nothing.
  std::shared_ptr<CaretForm*> self_;
};

// Feuille_Caret of this apartment, loaded at its first use.
CaretForm& FeuilleCaret(ModuleState& st);

// The host form's caret control, looked up by name (438 when the form has
// none).
PictureBoxRef CaretControl(ModuleState& st);
// The same, kept from one use to the next while the form's members stay as
// they were; looked up again whenever they may have changed.
PictureBox& CachedCaretControl(ModuleState& st);

// The caret's picture for the present Insertion: insert arrow or overwrite bar.
void ChooseCaretPicture(ModuleState& st);

// After a key: both timers stopped (interval first), the caret hidden. It stays
// off while a command runs and while the field is redrawn.
void StopCaret(ModuleState& st);

}  // namespace ferlan
