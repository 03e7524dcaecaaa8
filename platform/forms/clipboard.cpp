#include "forms/clipboard.hpp"

namespace ferlan::forms {

void Clipboard::SetText(const String& text, Long format) {
  if (format != kText) throw PlatformError::InvalidCall("clipboard format");
  text_ = text;
}

String Clipboard::GetText(Long format) {
  if (format != kText) throw PlatformError::InvalidCall("clipboard format");
  return text_;
}

}  // namespace ferlan::forms
