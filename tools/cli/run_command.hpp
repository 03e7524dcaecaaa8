// `ferlan run FILE`: the requests of the automate protocol played in a real
// window, keys coming from the person at the keyboard.
#pragma once

#include <iosfwd>
#include <string>

namespace ferlan::tool {

// Plays the requests of `file` (one JSON object a line) against a session
// shown in a window, one answer a line on `out`; then keeps the window up
// until the person closes it. Closing it earlier sets Env.Abandon, which
// ends the wait under way, and the requests left are not played. Gives the
// exit status: 0, or 2 with one line on `err` when the file cannot be read
// or no window can be opened (no display).
int RunInWindow(const std::string& file, std::ostream& out, std::ostream& err);

}  // namespace ferlan::tool
