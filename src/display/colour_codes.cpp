// Colour codes: short texts that name a role ("N", "B", "I", "S", "R") or a
// colour of the host's palette. The values live in Env and are read at each
// call, so a palette changed by the host applies to the next output.
#include <array>

#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"

namespace ferlan {
namespace {

using PaletteEntry = Long (Env::*)();

struct TextColour {
  StringView code;
  PaletteEntry colour;
};

// Compared exactly: case, accents and length count, nothing is trimmed.
constexpr std::array<TextColour, 14> kTextColours{{
    {u"N", &Env::Noir},
    {u"B", &Env::CouleurB},
    {u"I", &Env::Jaune},
    {u"S", &Env::Jaune},
    {u"R", &Env::Blanc},
    {u"Blanc", &Env::Blanc},
    {u"GrisTresClair", &Env::GrisTresClair},
    {u"GrisClair", &Env::GrisClair},
    {u"Gris", &Env::Gris},
    {u"GrisFoncé", &Env::GrisFonce},
    {u"Bleu", &Env::Bleu},
    {u"Rouge", &Env::Rouge},
    {u"Marron", &Env::Marron},
    {u"Jaune", &Env::Jaune},
}};

// Only three roles have a box colour of their own.
constexpr std::array<TextColour, 3> kBackgrounds{{
    {u"I", &Env::Bleu},
    {u"S", &Env::CouleurB},
    {u"R", &Env::Bleu},
}};

}  // namespace

Long KySaisie::CouleurFond(const String& C) {
  ModuleState& st = State();
  for (const TextColour& entry : kBackgrounds) {
    if (C == entry.code) return ((*st.Env).*entry.colour)();
  }
  // -1: no box of its own, the text stands on the surface's back colour.
  // An unknown code is no error here.
  return -1;
}

Long KySaisie::Couleur(const String& C) {
  ModuleState& st = State();
  for (const TextColour& entry : kTextColours) {
    if (C == entry.code) return ((*st.Env).*entry.colour)();
  }
  st.Erreur->Message(C + u" Code Couleur Inconnu", u"Couleur");
  return 0;
}

}  // namespace ferlan
