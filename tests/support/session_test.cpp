#include "support/session_test.hpp"

#include <iostream>
#include <optional>
#include <string>

namespace ferlan::testing {

std::size_t SessionTest::Type(std::string_view script) {
  typed_.emplace_back(script);
  try {
    return session.Keys().Append(script);
  } catch (const PlatformError& e) {
    ADD_FAILURE() << "key script \"" << script << "\" refused: " << e.Description();
    return 0;
  }
}

void SessionTest::Pump(int ms) {
  // A wait bounds each step of the loop, so exactly `ms` pass.
  session.Keys().Append("{wait:" + std::to_string(ms) + "}");
  while (!session.Keys().Empty()) session.Loop().DoEvents();
}

std::vector<std::string> SessionTest::TakeReports() {
  std::vector<std::string> out;
  for (const auto& r : session.Records().reports) {
    out.push_back(r.code ? std::to_string(*r.code) : ToUtf8(r.source) + ": " + ToUtf8(r.text));
  }
  session.Records().reports.clear();
  return out;
}

void SessionTest::TearDown() {
  if (!HasFailure() || typed_.empty()) return;
  std::cerr << "Key scripts typed in this test:\n";
  for (const std::string& s : typed_) std::cerr << "  " << s << '\n';
}

void ExpectPlatformError(const std::function<void()>& fn, Long number, std::string_view text,
                         const char* file, int line) {
  try {
    fn();
  } catch (const PlatformError& e) {
    if (e.Number() != number || (!text.empty() && e.Description() != text) ||
        e.Description().empty()) {
      ADD_FAILURE_AT(file, line) << "error " << e.Number() << " (" << e.Description()
                                 << "), expected " << number << " " << text;
    }
    return;
  } catch (const std::exception& e) {
    ADD_FAILURE_AT(file, line) << "expected error " << number << ", got: " << e.what();
    return;
  }
  ADD_FAILURE_AT(file, line) << "expected platform error " << number << ", nothing was raised";
}

}  // namespace ferlan::testing
