// Characters through Windows-1252, the system's single-byte code page.
#include <array>

#include "ferlan/runtime.hpp"

namespace ferlan {

namespace {

// 0x80..0x9F of Windows-1252; 0 marks the five codes the page leaves
// undefined, which map to the same-numbered control characters.
constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char16_t UnitOfCode(Long code) {
  if (code >= 0x80 && code <= 0x9F) {
    const char16_t mapped = kHighControls[static_cast<std::size_t>(code - 0x80)];
    return mapped != 0 ? mapped : static_cast<char16_t>(code);
  }
  return static_cast<char16_t>(code);
}

}  // namespace

int Cp1252Code(char16_t unit) {
  if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF)) return unit;
  for (std::size_t i = 0; i < kHighControls.size(); ++i) {
    const char16_t mapped = kHighControls[i];
    if (mapped == unit || (mapped == 0 && unit == 0x80 + i)) return static_cast<int>(0x80 + i);
  }
  return -1;
}

String Chr(Long code) {
  if (code < 0 || code > 255) throw PlatformError::InvalidCall("Chr of a code outside 0 to 255");
  return String(1, UnitOfCode(code));
}

Integer Asc(StringView text) {
  if (text.empty()) throw PlatformError::InvalidCall("Asc of an empty text");
  const int code = Cp1252Code(text.front());
  return static_cast<Integer>(code < 0 ? '?' : code);
}

}  // namespace ferlan
