// Centring a control in the form, growing the form (never shrinking it) when
// the control no longer fits. Setting the form's Height or Width runs the
// host's own handlers before the assignment returns, and those may call
// Centrage again: CentrageEnCours turns such a nested call into nothing.
#include <string_view>

#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {
namespace {

// RAII guard of CentrageEnCours: raised for the time of one Centrage and put
// down on every way out, also when a platform error interrupts the call, so
// that a failed Centrage does not turn every later one into nothing.
class CentringGuard {
 public:
  explicit CentringGuard(ModuleState& st) : st_(st) { st_.CentrageEnCours = true; }
  ~CentringGuard() { st_.CentrageEnCours = false; }
  CentringGuard(const CentringGuard&) = delete;
  CentringGuard& operator=(const CentringGuard&) = delete;

 private:
  ModuleState& st_;
};

// Height of the toolbar if it shows, else 0. Looked up by name at each use:
// a form without BarreOutils fails here with 438.
Single ToolbarHeight(ModuleState& st) {
  if (FormMember<Control>(CurrentForm(st), "BarreOutils")->Visible()) {
    return FormMember<Control>(CurrentForm(st), "BarreOutils")->Height();
  }
  return 0;
}

// P is any object of the form: its members are reached by name, as the
// platform's late binding does, so that a control lacking one of them fails
// with 438 only in the step that reads it.
Single MemberOf(Object& object, std::string_view name) {
  return VariantToSingle(object.GetProperty(name));
}

}  // namespace

void KySaisie::Centrage(ObjectRef P, Long MargeBasse) {
  ModuleState& st = State();
  if (st.CentrageEnCours) return;
  const CentringGuard guard(st);

  const Single toolbar = ToolbarHeight(st);
  Single offered = CSng(static_cast<Double>(CurrentForm(st).ScaleHeight()) - toolbar);

  if (CurrentForm(st).WindowState() == 0) {
    if (!P) throw PlatformError::ObjectNotSet();
    Boolean grown = false;
    // The test takes P.ScaleHeight, the new height P.Height: a control with
    // a border makes the form a little taller than the test needed.
    if (offered < static_cast<Double>(MemberOf(*P, "ScaleHeight")) + MargeBasse +
                      MulInt(15, st.Env->MargeY())) {
      Form& form = CurrentForm(st);
      const Double height = static_cast<Double>(form.Height()) - form.ScaleHeight() + toolbar +
                            MemberOf(*P, "Height") + MargeBasse + MulInt(15, st.Env->MargeY());
      CurrentForm(st).SetHeight(CSng(height));
      offered = CSng(static_cast<Double>(CurrentForm(st).ScaleHeight()) - toolbar);
      grown = true;
    }
    if (CurrentForm(st).ScaleWidth() < MemberOf(*P, "Width")) {
      // No margin for the width.
      const Double width = static_cast<Double>(CurrentForm(st).Width()) -
                           CurrentForm(st).ScaleWidth() + MemberOf(*P, "Width");
      CurrentForm(st).SetWidth(CSng(width));
      grown = true;
    }
    if (grown) st.Dessin->Recadre(CurrentForm(st));
  }

  if (!P) throw PlatformError::ObjectNotSet();
  // Floating-point halves: a position may end in .5, and a control larger
  // than the room offered gets a negative one. MargeBasse has no part in
  // the centring; the room it buys lies above and below P in equal shares.
  const Double width = MemberOf(*P, "Width");
  P->SetProperty("Left", CSng(Divide(CurrentForm(st).ScaleWidth() - width, 2)));
  const Double height = MemberOf(*P, "Height");
  P->SetProperty("Top", CSng(toolbar + Divide(offered - height, 2)));
}

}  // namespace ferlan
