// The keyboard the headless front-end pretends to have: a US layout on the
// platform, turning a character or a named key, with a Shift mask, into the
// KeyDown and KeyPress that the platform would raise.
#pragma once

#include <optional>
#include <string_view>

#include "headless/key_script.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::headless {

// The key events of typing `c` with the modifiers `mask` held (the mask of
// KeyDown: 1 Shift, 2 Ctrl, 4 Alt). Shift is added where the layout needs
// it ("A", "!"). Errors: 5 for a control character, for a character beyond
// U+7FFF (KeyPress carries an Integer), and for modifiers with a character
// the layout lacks.
KeyItem TypeCharacter(char16_t c, Integer mask);

// The key events of the named key (case ignored: "Enter", "pgdn", "F12")
// with `mask` held, or nothing when the name is not a key's.
std::optional<KeyItem> PressNamedKey(std::string_view name, Integer mask);

}  // namespace ferlan::headless

FERLAN_PUBLIC_END
