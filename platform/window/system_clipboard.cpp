#include "window/system_clipboard.hpp"

#include <SDL.h>

#include <string>

#include "forms/clipboard.hpp"

namespace ferlan::window {

namespace {

class Clipboard final : public ferlan::Clipboard {
 public:
  void Clear() override { SDL_SetClipboardText(""); }
  // Errors: 5 for a format other than text.
  void SetText(const String& text, Long format) override {
    if (format != forms::Clipboard::kText) throw PlatformError::InvalidCall("clipboard format");
    const std::string utf8 = ToUtf8(text);
    if (SDL_SetClipboardText(utf8.c_str()) != 0) {
      throw PlatformError::Host("SDL", SDL_GetError());
    }
  }
  String GetText(Long format) override {
    if (format != forms::Clipboard::kText) throw PlatformError::InvalidCall("clipboard format");
    char* utf8 = SDL_GetClipboardText();
    if (utf8 == nullptr) return {};
    String text = FromUtf8(utf8);
    SDL_free(utf8);
    return text;
  }
};

}  // namespace

std::unique_ptr<ferlan::Clipboard> SystemClipboard() { return std::make_unique<Clipboard>(); }

}  // namespace ferlan::window
