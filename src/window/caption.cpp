// The caption of the main form: the application's own text, then the date,
// the header text and the company from the environment.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {

void KySaisie::Titre(const String& T) {
  ModuleState& st = State();
  // Read in the order they show; only the company name loses its trailing
  // blanks, the other pieces go in as they come.
  const String date = st.Env->DateTitre();
  const String header = st.Entete->Texte();
  const String code = st.Env->CodeEnt();
  const String name = RTrim(st.Env->NomEnt());
  // One assignment: the host's handlers see the whole caption or none of it.
  CurrentForm(st).SetCaption(T + u" au " + date + u" - " + header + u" -  Code Ent " + code +
                             u" : " + name);
}

}  // namespace ferlan
