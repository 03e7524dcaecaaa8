// The system's clipboard, text only, through SDL: what a person copies in
// another program pastes into a field, and the other way round.
#pragma once

#include <memory>

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::window {

// Pre: SDL's video is initialised while the clipboard is used (the Window
// that gives it does so).
std::unique_ptr<ferlan::Clipboard> SystemClipboard();

}  // namespace ferlan::window

FERLAN_PUBLIC_END
