// The bracketed list format of Chaines (docs/lists.md): reading a list front
// to back, writing one element, and checking a list's syntax. Nothing here
// recurses, so any nesting depth is safe, and every loop stops at the end of
// the text, so a malformed list neither hangs nor reads out of bounds.
#pragma once

#include <cstddef>

#include "ferlan/runtime.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::kit {

// Reads the elements of a list in order without changing it. Any text reads:
// a malformed list gives what the rules of docs/lists.md make of it.
class ListReader {
 public:
  explicit ListReader(StringView list);

  // True when no element is left: at once for "[]".
  bool AtEnd() const { return at_end_; }
  // The next element. Pre: !AtEnd().
  String Next();
  // Goes past the next element without decoding it, as Next does.
  void Skip();
  // Makes `list` the list of the elements not read yet, exactly "[]" when
  // none is left, in place. Invariant: once Next has run, shorter than it
  // was, or "[]". Pre: `list` is the text the reader reads, unchanged.
  void DropRead(String& list) const;

 private:
  // Where the element at pos_ ends in body_: its comma, or the end.
  std::size_t ElementEnd() const;
  void MovePast(std::size_t stop);

  StringView list_;
  StringView body_;         // the text between the brackets
  bool bare_ = false;       // a text without "[" in front: one element
  bool closed_ = false;     // the text ends with "]"
  bool at_end_ = false;
  std::size_t pos_ = 0;     // in body_
};

// The text that Chaines.Ajoute writes for one element, such that ListReader
// gives the element back exactly.
String EncodeElement(StringView element);

// Syntax check of a whole list. When not ok, `position` is the first wrong
// character from 1; Len + 1 when the text ends too early.
struct ListCheck {
  bool ok = true;
  Long position = 0;
};
ListCheck CheckList(StringView list);

}  // namespace ferlan::kit

FERLAN_PUBLIC_END
