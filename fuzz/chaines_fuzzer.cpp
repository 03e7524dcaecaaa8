// The list format under arbitrary texts. Invariants checked:
// - reading any text ends: each Suivant shortens the list or leaves exactly
//   "[]", and NbElements and Element agree with what Suivant gives;
// - ListeValide does not change the list, and gives a position within
//   1..Len + 1 when it refuses;
// - the input as an element comes back exactly through Ajoute and Suivant,
//   and the list so made is well formed;
// - a well-formed input gets one more element from Ajoute and keeps its own.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "fuzz_text.hpp"
#include "kit/chaines.hpp"

using ferlan::Boolean;
using ferlan::Long;
using ferlan::String;
using ferlan::fuzz::Fail;

namespace {

std::vector<String> ReadAll(ferlan::kit::Chaines& chaines, const String& list) {
  std::vector<String> elements;
  String rest = list;
  while (rest != u"[]") {
    const std::size_t before = rest.size();
    elements.push_back(chaines.Suivant(rest));
    if (rest != u"[]" && rest.size() >= before) Fail("Suivant did not shorten the list");
    if (elements.size() > list.size() + 1) Fail("more elements than characters");
  }
  return elements;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const String text = ferlan::fuzz::TextOf(data, size);
  ferlan::kit::Chaines chaines;

  const std::vector<String> elements = ReadAll(chaines, text);
  if (chaines.NbElements(text) != static_cast<Long>(elements.size())) Fail("NbElements");
  // Each Element reads the list from its start, so checking every position
  // would make a run quadratic in the input: 16 positions spread over the
  // list, and the last, keep it linear.
  const auto check_element = [&](std::size_t i) {
    if (chaines.Element(text, static_cast<Long>(i + 1)) != elements[i]) Fail("Element");
  };
  const std::size_t step = elements.size() / 16 + 1;
  for (std::size_t i = 0; i < elements.size(); i += step) check_element(i);
  if (!elements.empty()) check_element(elements.size() - 1);
  if (!chaines.Element(text, static_cast<Long>(elements.size() + 1)).empty()) {
    Fail("Element beyond the end");
  }

  Boolean ok = false;
  Long pos = 0;
  chaines.ListeValide(text, ok, pos);
  if (!ok && (pos < 1 || pos > ferlan::Len(text) + 1)) Fail("ListeValide position");

  String made = u"[]";
  chaines.Ajoute(made, text);
  chaines.Ajoute(made, text);
  chaines.Ajoute(made, u"end");
  const std::vector<String> back = ReadAll(chaines, made);
  if (back != std::vector<String>{text, text, u"end"}) Fail("element round trip");
  Boolean made_ok = false;
  chaines.ListeValide(made, made_ok, pos);
  if (!made_ok) Fail("Ajoute made a malformed list");

  if (ok) {
    String longer = text;
    chaines.Ajoute(longer, u"tail");
    std::vector<String> expected = elements;
    expected.push_back(u"tail");
    if (ReadAll(chaines, longer) != expected) Fail("Ajoute on a well-formed list");
  }
  return 0;
}
