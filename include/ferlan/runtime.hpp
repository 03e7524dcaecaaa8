// The platform's rules, in one place: value types, the error type, rounding and
// overflow, checked arithmetic, Windows-1252 characters, fixed strings and the
// numeric value of a text. Nobody hand-rolls any of these elsewhere.
#pragma once

#include <cstdint>
#include <exception>
#include <limits>
#include <string>
#include <string_view>
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan {

using Integer = std::int16_t;
using Long = std::int32_t;
using Single = float;
using Double = double;
using Boolean = bool;
using String = std::u16string;
using StringView = std::u16string_view;

// ---------------------------------------------------------------------------
// Errors of the platform. One type; each number is spelled once, in its
// named constructor. Nothing else throws across the component.
// ---------------------------------------------------------------------------
class PlatformError : public std::exception {
 public:
  PlatformError(Long number, std::string description);

  Long Number() const noexcept { return number_; }
  const std::string& Description() const noexcept { return description_; }
  const char* what() const noexcept override { return description_.c_str(); }

  static PlatformError InvalidCall(std::string_view detail = {});  // 5
  static PlatformError Overflow();                                  // 6
  static PlatformError SubscriptOutOfRange();                       // 9
  static PlatformError DivisionByZero();                            // 11
  static PlatformError TypeMismatch(std::string_view detail = {});  // 13
  static PlatformError ObjectNotSet();                              // 91
  static PlatformError CannotCreateObject(std::string_view class_name);  // 429
  static PlatformError MemberNotSupported(std::string_view member);      // 438
  static PlatformError ActionNotSupported(std::string_view what);        // 445
  static PlatformError ArgumentNotOptional(std::string_view detail = {});  // 449
  static PlatformError WrongArgumentCount(std::string_view detail = {});   // 450
  // A failure of a drawing or window library, with that library's own text.
  static PlatformError Host(std::string_view library, std::string_view text);

 private:
  Long number_;
  std::string description_;
};

// ---------------------------------------------------------------------------
// Conversions to whole numbers: round to nearest, ties to even; out of range
// (or not a number) raises overflow.
// ---------------------------------------------------------------------------
Integer CInt(Double value);
Long CLng(Double value);
// Double to Single; beyond the range of Single raises overflow.
Single CSng(Double value);

// Arithmetic typed as 16 or 32 bits, checked like the conversions.
Integer AddInt(Integer a, Integer b);
Integer SubInt(Integer a, Integer b);
Integer MulInt(Integer a, Integer b);
Long AddLng(Long a, Long b);
Long SubLng(Long a, Long b);
Long MulLng(Long a, Long b);
// Whole-number division (the platform's backslash): truncates toward zero;
// b 0 is division by zero.
Long DivLng(Long a, Long b);
// Narrowing of a wider whole number, checked.
Integer ToInteger(long long value);
Long ToLong(long long value);
// Floating division as the platform does it: x/0 is division by zero, 0/0
// is overflow.
Double Divide(Double a, Double b);

// ---------------------------------------------------------------------------
// Characters through the system's single-byte code page, Windows-1252.
// ---------------------------------------------------------------------------
// The character of a code from 0 to 255; any other code is an invalid call.
String Chr(Long code);
// The code of the first character; an empty text is an invalid call, and a
// character the code page lacks gives 63, "?".
Integer Asc(StringView text);
// Code of one UTF-16 unit in Windows-1252, or -1 when the page lacks it.
int Cp1252Code(char16_t unit);

// ---------------------------------------------------------------------------
// Texts. Positions count from 1, as the component's algorithms do.
// ---------------------------------------------------------------------------
Long Len(StringView s);
String Left(StringView s, Long n);
String Right(StringView s, Long n);
// From position `start` (1-based) to the end; start < 1 is an invalid call.
String Mid(StringView s, Long start);
String Mid(StringView s, Long start, Long length);
// The same parts as Left and Mid, with the same checks, seen in place: for a
// caller that copies them into a string it keeps.
StringView LeftView(StringView s, Long n);
StringView MidView(StringView s, Long start, Long length);
// Mid statement: overwrite from `start` with at most `length` characters of
// `with`, never growing `s`; start < 1 or beyond the text is an invalid call.
void MidAssign(String& s, Long start, Long length, StringView with);
String Space(Long n);
String RTrim(StringView s);
String LTrim(StringView s);
String Trim(StringView s);
String UCase(StringView s);
// 1-based position of `what` in `s` from `start`, 0 when absent.
Long InStr(Long start, StringView s, StringView what);

// The numeric value of a text: its longest leading part that reads as a
// number (leading blanks skipped, optional sign, digits with a point as
// decimal separator, optional exponent), 0 when there is none.
Double Val(StringView s);
// Decimal text of a number as the platform's Str$ writes it, without the
// leading blank of positive numbers.
String NumberText(Double value);

// Late-bound names (properties, members, key names): equal when they differ
// at most in the case of ASCII letters, as the platform matches them.
bool SameName(std::string_view a, std::string_view b);

// UTF-8 at the edges (JSON, messages, files).
std::string ToUtf8(StringView s);
String FromUtf8(std::string_view s);

// A field of exactly N characters: shorter texts are padded with blanks on
// assignment, longer ones are cut.
template <std::size_t N>
class Fixed {
 public:
  Fixed() : text_(N, u' ') {}
  Fixed(StringView s) { Assign(s); }  // NOLINT: assignment from a text is the point
  Fixed& operator=(StringView s) {
    Assign(s);
    return *this;
  }
  const String& Text() const { return text_; }
  // The text without its trailing blanks, as every reader takes it.
  String Trimmed() const { return RTrim(text_); }
  friend bool operator==(const Fixed&, const Fixed&) = default;

 private:
  void Assign(StringView s) {
    text_.assign(s.substr(0, N));
    text_.resize(N, u' ');
  }
  String text_;
};

}  // namespace ferlan

FERLAN_PUBLIC_END
