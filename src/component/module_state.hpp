// The module state: every variable of the component, one copy per apartment,
// and the external objects, each created by class name at its first use and
// kept until the apartment ends.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "ferlan/host.hpp"
#include "ferlan/kysaisie.hpp"
#include "ferlan/runtime.hpp"

namespace ferlan {

class CaretForm;  // the hidden form Feuille_Caret, src/editor/caret_form.hpp

// One field of the current entry screen.
struct RubRecord {
  Fixed<30> Identif;
  Fixed<80> Libelle;
  Fixed<3> TypeDon;
  Fixed<1> Coul;
  Fixed<100> Valeur;
  Integer LC = 0;
  Single LcT = 0;
  Single LzT = 0;
  Integer L = 0;
  Single ClT = 0;
  Single CzT = 0;
  Single CT = 0;
  Single LlT = 0;
};

// One column of the current table.
struct ColonneRecord {
  Fixed<20> Ident;
  Fixed<50> TitreCol;
  Integer ColDeb = 0;
  Integer Larg = 0;
};

// An external object reference: empty until first use, then kept.
template <class T>
class External {
 public:
  External(const ClassRegistry& registry, const char* class_name)
      : registry_(registry), class_name_(class_name) {}
  T& operator*() { return *Get(); }
  T* operator->() { return Get(); }
  T* Get() {
    if (!object_) {
      ObjectRef created = registry_.Create(class_name_);
      object_ = std::dynamic_pointer_cast<T>(created);
      if (!object_) throw PlatformError::CannotCreateObject(class_name_);
    }
    return object_.get();
  }

 private:
  const ClassRegistry& registry_;
  const char* class_name_;
  std::shared_ptr<T> object_;
};

struct Apartment::State {
  explicit State(ClassRegistry reg);
  ~State();

  ClassRegistry registry;

  // Field editor.
  Boolean Insertion = false;
  // Window sizing: re-entry guard of Centrage.
  Boolean CentrageEnCours = false;
  // Caret.
  Long PosCaretX = 0;
  Long PosCaretY = 0;
  Boolean CaretVisible = false;
  Long PosCaretXPrec = 0;
  // Key pipeline.
  Boolean ToucheTraitee = false;
  Integer ToucheEnAttente = 0;
  Boolean EstCaractere = false;
  // Virtual keyboard: the only start value that is not zero or empty.
  String ClavierTampon = u"[]";
  // Entry screens.
  Integer NbRub = 0;
  std::array<RubRecord, 41> Rub{};
  Integer nES = 0;
  std::array<Integer, 6> sNbRub{};
  std::array<std::array<RubRecord, 41>, 6> sES{};
  // Tables.
  std::vector<ColonneRecord> Colonnes;
  Long NbColonnes = 0;
  Long LigneTable = 0;
  Integer NbLignesTable = 0;
  std::vector<ColonneRecord> sColonnes;
  Long sNbColonnes = 0;
  Long sLigneTable = 0;
  Integer sNbLignesTable = 0;
  // Created at the first Modif that needs it. Shared, not unique, so that
  // this header needs no complete CaretForm.
  std::shared_ptr<CaretForm> Feuille_Caret;
  // The host form's caret control as last looked up by name, good while that
  // form reports the same members version (src/editor/caret_form.cpp).
  struct {
    const Form* form = nullptr;
    std::uint64_t version = 0;
    PictureBox* control = nullptr;
  } CaretLookup;

  // External objects.
  External<ferlan::Env> Env{registry, "Env"};
  External<ferlan::Chaines> Chaines{registry, "Chaines"};
  External<ferlan::Conv> Conv{registry, "Conv"};
  External<ferlan::Erreur> Erreur{registry, "Erreur"};
  External<ferlan::Dessin> Dessin{registry, "Dessin"};
  External<ferlan::Pile> Pile{registry, "Pile"};
  External<ferlan::Boite> Boite{registry, "Boite"};
  External<ferlan::Aide> Aide{registry, "Aide"};
  External<ferlan::Entete> Entete{registry, "Entete"};
  External<ferlan::Calcul> Calcul{registry, "Calcul"};
  External<ferlan::Dates> Dates{registry, "Dates"};
  External<ferlan::Fenetres> Fenetres{registry, "Fenetres"};
  External<ferlan::Global> Global{registry, "Global"};
};

using ModuleState = Apartment::State;

// The current apartment's state of this thread, null outside any. Read at
// nearly every call: the initial-exec model reaches it without a call to the
// dynamic loader, at the cost of one pointer of static TLS.
[[gnu::tls_model("initial-exec")]] extern thread_local Apartment::State* current_apartment_state;
// The state of a thread that calls before making an apartment of its own.
ModuleState& DefaultState();
[[noreturn]] void ThrowObjectNotSet();

// The module state of the calling thread's current apartment. Inline, as
// are the two below, since a key typed reads them some forty times.
inline ModuleState& State() {
  if (current_apartment_state) [[likely]] return *current_apartment_state;
  return DefaultState();
}

// The host's form and surface as Env holds them now; Nothing raises 91.
inline Form& CurrentForm(ModuleState& st) {
  Form* form = st.Env->KyFView();
  if (!form) [[unlikely]] ThrowObjectNotSet();
  return *form;
}
inline PictureBox& CurrentZone(ModuleState& st) {
  PictureBox* zone = st.Env->ZoneAffView();
  if (!zone) [[unlikely]] ThrowObjectNotSet();
  return *zone;
}
PictureBoxRef CurrentZoneRef(ModuleState& st);

// A member of the form by name, as the interface T; 438 when missing or of
// another kind.
template <class T>
std::shared_ptr<T> FormMember(Form& form, std::string_view name) {
  auto typed = std::dynamic_pointer_cast<T>(form.Member(name));
  if (!typed) throw PlatformError::MemberNotSupported(name);
  return typed;
}

}  // namespace ferlan
