// A customer card entered the way a business application does it: the
// window shows the form, the component runs each field, and the program
// chooses the next field from the key that ended the last one.
#include <iostream>
#include <string>

#include "ferlan/kysaisie.hpp"
#include "window/window.hpp"

int main() {
  using ferlan::Integer;
  using ferlan::String;
  std::unique_ptr<ferlan::window::Window> window;
  try {
    window = std::make_unique<ferlan::window::Window>("Fiche client");
  } catch (const ferlan::PlatformError& e) {
    std::cerr << "entry_host: no display to open a window on (" << e.Description() << ")\n";
    return 2;
  }
  auto session = window->OpenSession();  // the form, its surface, Env, the keyboard
  ferlan::KySaisie k;

  k.InitKyF();
  // The screen: each field's identifier, label, type and length. Dorvi
  // reads it, lays it out, draws the labels and boxes and sizes the form.
  String definition =
      u"[@COL10,[NOM,Nom du client,A,30],[VILLE,Ville,A,25],[TEL,Téléphone,A,14]]";
  k.Dorvi(definition);
  k.MesBasEcran(u"Bleu", u"Entrée: champ suivant, Haut: champ précédent, F10: fin");

  // Each field entered by its identifier; Enter or Down goes on, Up goes
  // back, a function key or closing the window ends. Escape only blanks the
  // field: the editor keeps it.
  const char16_t* ids[] = {u"NOM", u"VILLE", u"TEL"};
  String values[3];
  const auto& env = session->Env();
  int current = 0;
  while (current < 3 && !env.Abandon) {
    Integer tr = 0;
    k.Sai(ids[current], values[current], tr);
    if (env.Abandon || (tr >= env.ToucheF1 && tr <= env.ToucheF12)) break;
    current = tr == env.ToucheHaut ? (current > 0 ? current - 1 : 0) : current + 1;
  }
  for (int i = 0; i < 3; ++i) {
    std::cout << ferlan::ToUtf8(ids[i]) << ": " << ferlan::ToUtf8(values[i]) << '\n';
  }
  return 0;
}
