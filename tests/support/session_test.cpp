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

void SessionTest::TearDown() {
  if (!HasFailure() || typed_.empty()) return;
  std::cerr << "Key scripts typed in this test:\n";
  for (const std::string& s : typed_) std::cerr << "  " << s << '\n';
}

namespace {

// The platform's own text of an error number, as its named constructor
// spells it without detail; nothing for numbers whose text is all detail.
std::optional<std::string> StandardText(Long number) {
  switch (number) {
    case 5: return PlatformError::InvalidCall().Description();
    case 6: return PlatformError::Overflow().Description();
    case 9: return PlatformError::SubscriptOutOfRange().Description();
    case 11: return PlatformError::DivisionByZero().Description();
    case 13: return PlatformError::TypeMismatch().Description();
    case 91: return PlatformError::ObjectNotSet().Description();
    case 429: return PlatformError::CannotCreateObject("").Description();
    case 438: return PlatformError::MemberNotSupported("").Description();
    case 449: return PlatformError::ArgumentNotOptional().Description();
    case 450: return PlatformError::WrongArgumentCount().Description();
    default: return std::nullopt;
  }
}

}  // namespace

void ExpectPlatformError(const std::function<void()>& fn, Long number, std::string_view text,
                         const char* file, int line) {
  try {
    fn();
  } catch (const PlatformError& e) {
    if (e.Number() != number) {
      ADD_FAILURE_AT(file, line)
          << "error " << e.Number() << " (" << e.Description() << "), expected " << number;
      return;
    }
    const std::string& got = e.Description();
    if (!text.empty()) {
      if (got != text) {
        ADD_FAILURE_AT(file, line)
            << "error " << number << " says \"" << got << "\", expected \"" << text << "\"";
      }
      return;
    }
    const std::optional<std::string> standard = StandardText(number);
    const bool ok = standard ? got == *standard || got.starts_with(*standard + ": ")
                             : number == 445 ? got.ends_with(" is not built yet") : !got.empty();
    if (!ok) {
      ADD_FAILURE_AT(file, line)
          << "error " << number << " says \"" << got << "\", not the platform's text"
          << (standard ? " \"" + *standard + "\"" : std::string());
    }
    return;
  } catch (const std::exception& e) {
    ADD_FAILURE_AT(file, line)
        << "expected platform error " << number << ", got another exception: " << e.what();
    return;
  }
  ADD_FAILURE_AT(file, line)
      << "expected platform error " << number << ", nothing was raised";
}

}  // namespace ferlan::testing
