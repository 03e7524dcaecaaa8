#include "cli/request_reader.hpp"

#include <istream>
#include <set>
#include <vector>

namespace ferlan::tool {

LineRead ReadRequestLine(std::istream& in, std::string& line, std::size_t limit) {
  line.clear();
  std::streambuf* buffer = in.rdbuf();
  bool any = false;
  bool too_long = false;
  for (;;) {
    const auto c = buffer->sbumpc();
    if (c == std::char_traits<char>::eof()) {
      in.setstate(std::ios::eofbit);
      if (!any) return LineRead::End;
      break;
    }
    any = true;
    if (c == '\n') break;
    if (too_long) continue;
    if (line.size() == limit) {
      too_long = true;
      std::string().swap(line);
      continue;
    }
    line.push_back(static_cast<char>(c));
  }
  return too_long ? LineRead::TooLong : LineRead::Line;
}

Json ParseRequest(std::string_view line) {
  // The JSON reader takes a NUL byte for the end of its input and would
  // answer what stands before it; JSON itself allows none outside a string.
  if (line.find('\0') != std::string_view::npos) {
    throw PlatformError::InvalidCall("a request holds no NUL byte (write \\u0000 in a string)");
  }
  // One entry per open array or object: the keys seen so far in it.
  std::vector<std::set<std::string>> keys;
  auto check = [&](int, Json::parse_event_t event, Json& parsed) {
    switch (event) {
      case Json::parse_event_t::object_start:
      case Json::parse_event_t::array_start:
        if (keys.size() >= static_cast<std::size_t>(kMaxRequestDepth)) {
          throw PlatformError::InvalidCall("a request nests at most " +
                                           std::to_string(kMaxRequestDepth) + " levels deep");
        }
        keys.emplace_back();
        break;
      case Json::parse_event_t::object_end:
      case Json::parse_event_t::array_end:
        keys.pop_back();
        break;
      case Json::parse_event_t::key:
        if (!keys.back().insert(parsed.get<std::string>()).second) {
          throw PlatformError::InvalidCall("key \"" + parsed.get<std::string>() +
                                           "\" given twice in one object");
        }
        break;
      case Json::parse_event_t::value:
        break;
    }
    return true;
  };
  try {
    return Json::parse(line, check);
  } catch (const Json::exception& e) {
    throw PlatformError::InvalidCall(std::string("broken JSON: ") + e.what());
  }
}

}  // namespace ferlan::tool
