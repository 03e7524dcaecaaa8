// Reading requests safely: a line of bounded length, then JSON of bounded
// nesting without repeated keys, so that no input costs more than its
// limits whatever it holds.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

#include "cli/json_values.hpp"

namespace ferlan::tool {

// A request line holds at most this many bytes (its line end excluded).
constexpr std::size_t kMaxRequestBytes = 4 * 1024 * 1024;
// Arrays and objects nest at most this deep in a request.
constexpr int kMaxRequestDepth = 64;

enum class LineRead { Line, TooLong, End };

// Reads up to the next '\n'. A longer line than `limit` is read to its end
// but not kept (TooLong, `line` empty); End when nothing is left.
LineRead ReadRequestLine(std::istream& in, std::string& line,
                         std::size_t limit = kMaxRequestBytes);

// Parses one request. Raises a PlatformError (5) for broken JSON (a raw NUL
// byte included), nesting
// deeper than kMaxRequestDepth (found while parsing, before the deeper levels
// are built) and a key given twice in one object.
Json ParseRequest(std::string_view line);

}  // namespace ferlan::tool
