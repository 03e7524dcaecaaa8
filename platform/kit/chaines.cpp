// Chaines on top of the list format.
#include "kit/chaines.hpp"

#include "kit/list_format.hpp"

namespace ferlan::kit {

void Chaines::Ajoute(String& Liste, String Element) {
  const String written = EncodeElement(Element);
  if (Liste.empty() || Liste == u"[]") {
    Liste = u"[" + written + u"]";
  } else if (Liste.front() != u'[') {
    Liste = u"[" + EncodeElement(Liste) + u"," + written + u"]";
  } else {
    // An unclosed list gets its bracket, so that it reads as before plus one.
    if (Liste.size() < 2 || Liste.back() != u']') Liste += u']';
    Liste.insert(Liste.size() - 1, u"," + written);
  }
}

Long Chaines::NbElements(const String& Liste) {
  ListReader reader(Liste);
  Long count = 0;
  while (!reader.AtEnd()) {
    reader.Skip();
    ++count;
  }
  return count;
}

void Chaines::Extrait(String& Liste, String& E) { E = Suivant(Liste); }

String Chaines::Suivant(String& Liste) {
  ListReader reader(Liste);
  if (reader.AtEnd()) return {};
  String first = reader.Next();
  reader.DropRead(Liste);
  return first;
}

String Chaines::Element(const String& Liste, Long I) {
  if (I < 1) return {};
  ListReader reader(Liste);
  for (Long k = 1; !reader.AtEnd(); ++k) {
    if (k == I) return reader.Next();
    reader.Skip();
  }
  return {};
}

void Chaines::ListeValide(const String& Liste, Boolean& Ok, Long& Pos) {
  const ListCheck check = CheckList(Liste);
  Ok = check.ok;
  Pos = check.position;
}

}  // namespace ferlan::kit
