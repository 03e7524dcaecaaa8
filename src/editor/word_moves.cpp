// Moves by word. A word character is one FnMot accepts: plain letters and
// digits only, so accented letters and punctuation separate words.
#include "editor/key_commands.hpp"

namespace ferlan {
namespace {

Boolean IsWordCharacter(const EditState& e, Integer at) {
  return KySaisie{}.FnMot(Asc(Mid(e.CH, at, 1)));
}

}  // namespace

void WordRight(EditState& e) {
  // Lim: the end of the text, but never left of the caret.
  Integer lim = ToInteger(Len(RTrim(e.CH)));
  if (lim < e.P) lim = e.P;
  Integer i = e.P;
  while (i <= lim && IsWordCharacter(e, i)) i = AddInt(i, 1);
  Integer j = i;
  while (j <= lim && !IsWordCharacter(e, j)) j = AddInt(j, 1);
  // No next word: the caret stays rather than going to the end of the text.
  if (i <= lim && j <= lim) e.P = j;
}

void WordLeft(EditState& e) {
  // On the first letter of a word, start looking left of it.
  Integer i = e.P;
  if (e.P > 1 && IsWordCharacter(e, e.P) && !IsWordCharacter(e, SubInt(e.P, 1))) {
    i = SubInt(e.P, 1);
  }
  while (i >= 1 && !IsWordCharacter(e, i)) i = SubInt(i, 1);
  Integer j = i;
  while (j >= 1 && IsWordCharacter(e, j)) j = SubInt(j, 1);
  if (i >= 1) e.P = AddInt(j, 1);
}

}  // namespace ferlan
