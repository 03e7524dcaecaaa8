// FERLAN_ASSERT(condition): an invariant the code relies on, checked in debug
// and sanitizer builds and compiled out (not evaluated) in release builds.
// A broken one prints "file:line: FERLAN_ASSERT(condition) failed" and aborts:
// it is a fault of this library or of its host's use of it, never bad input.
// Define FERLAN_ASSERTIONS to 1 or 0 to choose regardless of the build.
#pragma once

#include <cstdio>
#include <cstdlib>

#ifndef FERLAN_ASSERTIONS
#if !defined(NDEBUG) || defined(__SANITIZE_ADDRESS__)
#define FERLAN_ASSERTIONS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define FERLAN_ASSERTIONS 1
#endif
#endif
#endif
#ifndef FERLAN_ASSERTIONS
#define FERLAN_ASSERTIONS 0
#endif

namespace ferlan {

[[noreturn]] inline void AssertionFailed(const char* condition, const char* file, int line) {
  std::fprintf(stderr, "%s:%d: FERLAN_ASSERT(%s) failed\n", file, line, condition);
  std::abort();
}

}  // namespace ferlan

#if FERLAN_ASSERTIONS
#define FERLAN_ASSERT(condition) \
  ((condition) ? static_cast<void>(0) : ::ferlan::AssertionFailed(#condition, __FILE__, __LINE__))
#else
#define FERLAN_ASSERT(condition) static_cast<void>(sizeof(static_cast<bool>(condition)))
#endif
