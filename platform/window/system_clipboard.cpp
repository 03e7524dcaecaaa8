#include "window/system_clipboard.hpp"

#include <SDL.h>

#include <string>

#include "forms/clipboard.hpp"
#if FERLAN_WINDOW_XLIB && defined(SDL_VIDEO_DRIVER_X11)
#include "window/x11_selection.hpp"
#define FERLAN_READS_X11_SELECTION 1
#endif

namespace ferlan::window {

namespace {

class Clipboard final : public ferlan::Clipboard {
 public:
  void Clear() override { Set(""); }
  // Errors: 5 for a format other than text.
  void SetText(const String& text, Long format) override {
    if (format != forms::Clipboard::kText) throw PlatformError::InvalidCall("clipboard format");
    if (!Set(ToUtf8(text))) throw PlatformError::Host("SDL", SDL_GetError());
  }
  String GetText(Long format) override {
    if (format != forms::Clipboard::kText) throw PlatformError::InvalidCall("clipboard format");
    std::string text;
    if (char* utf8 = SDL_GetClipboardText()) {
      text = utf8;
      SDL_free(utf8);
    }
#if FERLAN_READS_X11_SELECTION
    // Empty from SDL, and held by another program: maybe sent in increments.
    // Never asked of this program's own window, which would not answer
    // while this waits.
    if (text.empty() && x11_) {
      const ::Window owner = selection_.Owner();
      if (owner != None && owner != own_owner_) text = selection_.ReadText().value_or("");
    }
#endif
    return FromUtf8(text);
  }

 private:
  bool Set(const std::string& utf8) {
    const bool done = SDL_SetClipboardText(utf8.c_str()) == 0;
#if FERLAN_READS_X11_SELECTION
    // SDL has made its own window the owner, and X knows it by now: SDL
    // asked X for the owner of another selection after.
    if (x11_) own_owner_ = selection_.Owner();
#endif
    return done;
  }

#if FERLAN_READS_X11_SELECTION
  const bool x11_ = SDL_GetCurrentVideoDriver() != nullptr &&
                    std::string(SDL_GetCurrentVideoDriver()) == "x11";
  X11SelectionReader selection_;
  ::Window own_owner_ = None;
#endif
};

}  // namespace

std::unique_ptr<ferlan::Clipboard> SystemClipboard() { return std::make_unique<Clipboard>(); }

}  // namespace ferlan::window
