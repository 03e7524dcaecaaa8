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
  k.DimensionFeuille(12, 60);
  k.AfficheCentre(1, u"R", u"Fiche client");
  struct Field {
    Integer line;
    const char16_t* label;
    const char16_t* type;
    Integer length;
    String value;
  };
  Field fields[] = {{3, u"Nom", u"A", 30, u""},
                    {5, u"Ville", u"A", 25, u""},
                    {7, u"Solde", u"N2", 12, u"0"}};
  for (const Field& f : fields) k.Affiche(f.line, 2, u"I", f.label);
  k.MesBasEcran(u"Bleu", u"Entrée: champ suivant, Haut: champ précédent, Échap: fin");

  // Enter or Down goes on, Up goes back, Escape or closing the window ends.
  const auto& env = session->Env();
  int current = 0;
  while (current < 3 && !env.Abandon) {
    Field& f = fields[current];
    Integer tr = 0;
    k.ModD(f.value, f.type, f.line, 12, k.WinCol(12), f.length, tr);
    if (env.Abandon || tr == env.ToucheVide) break;
    current = tr == env.ToucheHaut ? (current > 0 ? current - 1 : 0) : current + 1;
  }
  for (const Field& f : fields) {
    std::cout << ferlan::ToUtf8(f.label) << ": " << ferlan::ToUtf8(f.value) << '\n';
  }
  return 0;
}
