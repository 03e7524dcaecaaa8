// Chaines: operations on bracketed lists of texts, in the format of
// list_format.hpp and docs/lists.md.
#pragma once

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::kit {

class Chaines : public ferlan::Chaines {
 public:
  // Appends one element; an empty text counts as "[]" and a text without a
  // "[" in front as a list of that one element.
  void Ajoute(String& Liste, String Element) override;
  // How many elements Suivant gives before the list reads "[]".
  Long NbElements(const String& Liste) override;
  void Extrait(String& Liste, String& E) override;
  // Removes and gives the first element. On "[]" gives "" and leaves "[]";
  // on any other text the list gets shorter or becomes "[]".
  String Suivant(String& Liste) override;
  // The element at position I from 1; "" where the list has none.
  String Element(const String& Liste, Long I) override;
  void ListeValide(const String& Liste, Boolean& Ok, Long& Pos) override;
};

}  // namespace ferlan::kit

FERLAN_PUBLIC_END
