// The fuzzer's bytes as a text: one character per byte, codes 0 to 255, so
// that brackets, commas, quotes, blanks and digits come up often.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "ferlan/runtime.hpp"

namespace ferlan::fuzz {

inline String TextOf(const std::uint8_t* data, std::size_t size) {
  String text;
  text.reserve(size);
  for (std::size_t i = 0; i < size; ++i) text += static_cast<char16_t>(data[i]);
  return text;
}

// Stops the run with the fuzzer's crash report when an invariant fails.
[[noreturn]] inline void Fail(const char* what) {
  std::fprintf(stderr, "invariant broken: %s\n", what);
  std::abort();
}

}  // namespace ferlan::fuzz
