// Rounding, overflow and checked arithmetic of the platform's number types.
#include <cmath>
#include <limits>

#include "ferlan/runtime.hpp"

namespace ferlan {

namespace {

// Out of line and cold, so that the checks around it stay a compare and a
// jump: they run a dozen times for each key typed.
[[noreturn, gnu::noinline, gnu::cold]] void ThrowOverflow() { throw PlatformError::Overflow(); }

// Round to nearest, ties to even, then check the range of T.
template <class T>
T RoundChecked(Double value) {
  if (std::isnan(value)) ThrowOverflow();
  const Double rounded = std::nearbyint(value);  // default mode: ties to even
  if (rounded < static_cast<Double>(std::numeric_limits<T>::min()) ||
      rounded > static_cast<Double>(std::numeric_limits<T>::max())) {
    ThrowOverflow();
  }
  return static_cast<T>(rounded);
}

template <class T>
T Narrow(long long value) {
  if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max()) {
    ThrowOverflow();
  }
  return static_cast<T>(value);
}

}  // namespace

Integer CInt(Double value) { return RoundChecked<Integer>(value); }
Long CLng(Double value) { return RoundChecked<Long>(value); }

Single CSng(Double value) {
  if (std::isfinite(value) && std::fabs(value) > std::numeric_limits<Single>::max()) {
    ThrowOverflow();
  }
  return static_cast<Single>(value);
}

Integer ToInteger(long long value) { return Narrow<Integer>(value); }
Long ToLong(long long value) { return Narrow<Long>(value); }

Integer AddInt(Integer a, Integer b) { return Narrow<Integer>(1LL * a + b); }
Integer SubInt(Integer a, Integer b) { return Narrow<Integer>(1LL * a - b); }
Integer MulInt(Integer a, Integer b) { return Narrow<Integer>(1LL * a * b); }
Long AddLng(Long a, Long b) { return Narrow<Long>(1LL * a + b); }
Long SubLng(Long a, Long b) { return Narrow<Long>(1LL * a - b); }
Long MulLng(Long a, Long b) { return Narrow<Long>(1LL * a * b); }
Long DivLng(Long a, Long b) {
  if (b == 0) throw PlatformError::DivisionByZero();
  return Narrow<Long>(1LL * a / b);  // the one overflow: the lowest Long by -1
}

Double Divide(Double a, Double b) {
  if (b == 0) {
    // The platform tells 0/0 (overflow) from x/0 (division by zero).
    if (a == 0 || std::isnan(a)) ThrowOverflow();
    throw PlatformError::DivisionByZero();
  }
  const Double q = a / b;
  if (std::isinf(q) && std::isfinite(a)) ThrowOverflow();
  return q;
}

}  // namespace ferlan
