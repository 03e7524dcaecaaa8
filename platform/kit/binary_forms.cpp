// Little-endian bytes in the low half of 16-bit characters.
#include "kit/binary_forms.hpp"

#include <bit>
#include <cstdint>

namespace ferlan::kit {

namespace {

template <class Bits>
String ToCharacters(Bits bits) {
  String out;
  for (std::size_t i = 0; i < sizeof(Bits); ++i) {
    out += static_cast<char16_t>((bits >> (8 * i)) & 0xFF);
  }
  return out;
}

template <class Bits>
Bits FromCharacters(StringView s) {
  Bits bits = 0;
  for (std::size_t i = 0; i < sizeof(Bits) && i < s.size(); ++i) {
    bits |= static_cast<Bits>(static_cast<Bits>(s[i] & 0xFF) << (8 * i));
  }
  return bits;
}

}  // namespace

String IntegerToBinary(Integer v) { return ToCharacters(static_cast<std::uint16_t>(v)); }

String SingleToBinary(Single v) { return ToCharacters(std::bit_cast<std::uint32_t>(v)); }

String DoubleToBinary(Double v) { return ToCharacters(std::bit_cast<std::uint64_t>(v)); }

Integer BinaryToInteger(StringView s) {
  return static_cast<Integer>(FromCharacters<std::uint16_t>(s));
}

Single BinaryToSingle(StringView s) {
  return std::bit_cast<Single>(FromCharacters<std::uint32_t>(s));
}

Double BinaryToDouble(StringView s) {
  return std::bit_cast<Double>(FromCharacters<std::uint64_t>(s));
}

}  // namespace ferlan::kit
