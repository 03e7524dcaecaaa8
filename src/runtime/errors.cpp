// Each platform error's number and text, spelled once.
#include <string>
#include <utility>

#include "ferlan/runtime.hpp"

namespace ferlan {

namespace {
std::string WithDetail(std::string text, std::string_view detail) {
  if (!detail.empty()) {
    text += ": ";
    text += detail;
  }
  return text;
}
}  // namespace

PlatformError::PlatformError(Long number, std::string description)
    : number_(number), description_(std::move(description)) {}

PlatformError PlatformError::InvalidCall(std::string_view detail) {
  return {5, WithDetail("Invalid procedure call or argument", detail)};
}
PlatformError PlatformError::Overflow() { return {6, "Overflow"}; }
PlatformError PlatformError::SubscriptOutOfRange() { return {9, "Subscript out of range"}; }
PlatformError PlatformError::DivisionByZero() { return {11, "Division by zero"}; }
PlatformError PlatformError::TypeMismatch(std::string_view detail) {
  return {13, WithDetail("Type mismatch", detail)};
}
PlatformError PlatformError::ObjectNotSet() {
  return {91, "Object variable or With block variable not set"};
}
PlatformError PlatformError::CannotCreateObject(std::string_view class_name) {
  return {429, WithDetail("ActiveX component can't create object", class_name)};
}
PlatformError PlatformError::MemberNotSupported(std::string_view member) {
  return {438, WithDetail("Object doesn't support this property or method", member)};
}
PlatformError PlatformError::ActionNotSupported(std::string_view what) {
  return {445, WithDetail("Object doesn't support this action", what)};
}
PlatformError PlatformError::ArgumentNotOptional(std::string_view detail) {
  return {449, WithDetail("Argument not optional", detail)};
}
PlatformError PlatformError::WrongArgumentCount(std::string_view detail) {
  return {450, WithDetail("Wrong number of arguments or invalid property assignment", detail)};
}
PlatformError PlatformError::Host(std::string_view library, std::string_view text) {
  return {51, std::string(library) + ": " + std::string(text)};
}

}  // namespace ferlan
