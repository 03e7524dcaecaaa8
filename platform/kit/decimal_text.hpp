// Decimal rounding and writing of a Double, done on the shortest decimal
// text that reads back as that Double, so that 2.675 rounds to 2.68 as a
// person expects and not to 2.67 as its binary value would.
// Private to the kit: neither installed nor exported.
#pragma once

#include "ferlan/runtime.hpp"

namespace ferlan::kit {

// `v` rounded to `decimals` places (negative: to tens, hundreds...), ties
// away from zero. A value that is not finite comes back unchanged.
Double RoundDecimals(Double v, int decimals);

// `v` rounded as RoundDecimals and written with exactly `decimals` places
// (none when `decimals` <= 0): a point, "-" in front of a negative value
// that does not round to zero, no thousands separator, no exponent.
// Not finite: "NaN", "Inf", "-Inf".
String FixedText(Double v, int decimals);

// `v` with at most `significant` significant digits and no trailing zeros
// after the point: "15", "15.244901723741", "0.001". Without exponent from
// 1e-20 up to below 1e21, with one ("1.5E+25") beyond. Not finite: as
// FixedText.
String ShortText(Double v, int significant);

}  // namespace ferlan::kit
