// The X clipboard read on a connection of its own, for what SDL cannot read:
// SDL takes a selection in one piece only, and an owner may send a large
// text in increments (INCR: Tk does above 4,000 bytes, other toolkits above
// their own request size), which SDL then reads as empty.
#pragma once

#include <X11/Xlib.h>

#include <cstddef>
#include <optional>
#include <string>

namespace ferlan::window {

class X11SelectionReader {
 public:
  // Opens nothing yet: the connection is made at first use.
  X11SelectionReader() = default;
  ~X11SelectionReader();
  X11SelectionReader(const X11SelectionReader&) = delete;
  X11SelectionReader& operator=(const X11SelectionReader&) = delete;

  // The window that owns CLIPBOARD now; None without an owner or an X server.
  ::Window Owner();
  // The clipboard's text in UTF-8, whole or sent in increments; nothing when
  // the owner refuses it or stops answering for a second. What has come
  // after kLargest bytes or 10 seconds is all there is.
  std::optional<std::string> ReadText();

  static constexpr std::size_t kLargest = 16u << 20;

 private:
  bool Open();
  // Waits at most a second for an event of `type` on the reader's window
  // (for PropertyNotify, a new value of the reader's property).
  bool WaitFor(int type, XEvent& event);
  // Reads and deletes the reader's property; gives its type.
  Atom TakeProperty(std::string& bytes);

  Display* display_ = nullptr;
  ::Window window_ = None;
  Atom clipboard_ = None, utf8_ = None, incr_ = None, property_ = None;
};

}  // namespace ferlan::window
