#if FERLAN_WINDOW_XLIB
#include "window/x11_selection.hpp"

#include <X11/Xatom.h>
#include <poll.h>

#include <algorithm>
#include <chrono>
#include <climits>

namespace ferlan::window {

using Clock = std::chrono::steady_clock;

X11SelectionReader::~X11SelectionReader() {
  if (display_ != nullptr) XCloseDisplay(display_);
}

bool X11SelectionReader::Open() {
  if (display_ != nullptr) return true;
  display_ = XOpenDisplay(nullptr);
  if (display_ == nullptr) return false;
  // An unmapped window to receive the text, told of changes to its
  // properties, as the increments need.
  window_ = XCreateSimpleWindow(display_, DefaultRootWindow(display_), 0, 0, 1, 1, 0, 0, 0);
  XSelectInput(display_, window_, PropertyChangeMask);
  clipboard_ = XInternAtom(display_, "CLIPBOARD", False);
  utf8_ = XInternAtom(display_, "UTF8_STRING", False);
  incr_ = XInternAtom(display_, "INCR", False);
  property_ = XInternAtom(display_, "FERLAN_SELECTION", False);
  return true;
}

::Window X11SelectionReader::Owner() {
  return Open() ? XGetSelectionOwner(display_, clipboard_) : None;
}

bool X11SelectionReader::WaitFor(int type, XEvent& event) {
  const auto give_up = Clock::now() + std::chrono::seconds(1);
  for (;;) {
    while (XPending(display_) > 0) {
      XNextEvent(display_, &event);
      if (event.type != type) continue;
      if (type == PropertyNotify &&
          (event.xproperty.atom != property_ || event.xproperty.state != PropertyNewValue)) {
        continue;
      }
      return true;
    }
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(give_up - Clock::now()).count();
    if (left <= 0) return false;
    pollfd connection{ConnectionNumber(display_), POLLIN, 0};
    poll(&connection, 1, static_cast<int>(left));
  }
}

Atom X11SelectionReader::TakeProperty(std::string& bytes) {
  Atom type = None;
  int format = 0;
  unsigned long count = 0;
  unsigned long after = 0;
  unsigned char* data = nullptr;
  bytes.clear();
  if (XGetWindowProperty(display_, window_, property_, 0, LONG_MAX / 4, True, AnyPropertyType,
                         &type, &format, &count, &after, &data) != Success) {
    return None;
  }
  if (data != nullptr) {
    if (format == 8) bytes.assign(reinterpret_cast<const char*>(data), count);
    XFree(data);
  }
  return type;
}

std::optional<std::string> X11SelectionReader::ReadText() {
  if (!Open()) return std::nullopt;
  const auto give_up = Clock::now() + std::chrono::seconds(10);
  XConvertSelection(display_, clipboard_, utf8_, property_, window_, CurrentTime);
  XEvent event;
  if (!WaitFor(SelectionNotify, event) || event.xselection.property == None) return std::nullopt;
  std::string text;
  if (TakeProperty(text) != incr_) return text;
  // Deleting the INCR property (TakeProperty did) asks for the first piece;
  // each piece read and deleted asks for the next, and an empty one ends.
  text.clear();
  std::string piece;
  for (;;) {
    if (!WaitFor(PropertyNotify, event)) return std::nullopt;
    TakeProperty(piece);
    if (piece.empty()) return text;
    text += piece;
    // An owner that never ends its text is not waited for: it gives up
    // when its next piece is not taken.
    if (text.size() >= kLargest || Clock::now() > give_up) {
      text.resize(std::min(text.size(), kLargest));
      return text;
    }
  }
}

}  // namespace ferlan::window
#endif
