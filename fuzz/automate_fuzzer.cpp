// `ferlan automate` requests under arbitrary bytes: each input is a few
// request lines given to a fresh session on the fixed surface, through the
// same reading and answering path as the command. Invariants checked: every
// line that is not blank gets exactly one answer; every answer is a JSON
// object whose "ok" is a Boolean, and a refusal carries an error number and
// description.
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "cli/automate_session.hpp"
#include "fuzz_text.hpp"

using ferlan::fuzz::Fail;
using ferlan::tool::Json;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  std::size_t requests = 0;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.find_first_not_of(" \t\r") != std::string::npos) ++requests;
  }

  ferlan::tool::AutomateSession session(ferlan::tool::SurfaceKind::Fixed);
  std::istringstream in(text);
  std::ostringstream out;
  if (!session.Run(in, out)) Fail("an answer could not be written to a string");

  std::size_t answers = 0;
  std::istringstream written(out.str());
  for (std::string line; std::getline(written, line); ++answers) {
    const Json answer = Json::parse(line, nullptr, false);
    if (!answer.is_object() || !answer.contains("ok") || !answer["ok"].is_boolean()) {
      Fail("an answer without a Boolean \"ok\"");
    }
    if (answer["ok"] == false) {
      const Json& error = answer.value("error", Json());
      if (!error.is_object() || !error.value("number", Json()).is_number_integer() ||
          !error.value("description", Json()).is_string()) {
        Fail("a refusal without an error number and description");
      }
    }
  }
  if (answers != requests) Fail("not one answer per request line");
  return 0;
}
