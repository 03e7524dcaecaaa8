// The packed forms in which a host stores Integer, Single and Double values:
// one byte per 16-bit character (0 to 255), least significant byte first,
// the IEEE 754 bits for the two reals. Reading is bit-exact (NaN payloads
// included); a short text reads as if padded with zero bytes, and a
// character above 255 gives its low byte.
#pragma once

#include "ferlan/runtime.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::kit {

String IntegerToBinary(Integer v);  // 2 characters
String SingleToBinary(Single v);    // 4 characters
String DoubleToBinary(Double v);    // 8 characters
Integer BinaryToInteger(StringView s);
Single BinaryToSingle(StringView s);
Double BinaryToDouble(StringView s);

}  // namespace ferlan::kit

FERLAN_PUBLIC_END
