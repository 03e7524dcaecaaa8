#include "cli/record_table_get.hpp"

#include <charconv>

#include "ferlan/screen_records.hpp"

namespace ferlan::tool {

bool IsRecordTablePath(const std::string& path) {
  return path == "NbRub" || path.starts_with("Rub.");
}

std::optional<Variant> RecordTableValue(const std::string& path) {
  if (!IsRecordTablePath(path)) return std::nullopt;
  if (path == "NbRub") return Variant(ScreenRecordCount());

  // "Rub." then the record number, a point and the field's name.
  const std::string rest = path.substr(4);
  const auto dot = rest.find('.');
  if (dot == std::string::npos) throw PlatformError::MemberNotSupported(path);
  long long index = 0;
  const char* first = rest.data();
  const char* last = rest.data() + dot;
  const auto [end, error] = std::from_chars(first, last, index);
  if (error != std::errc{} || end != last) {
    throw PlatformError::InvalidCall("get " + path + ": the record number is a whole number");
  }
  if (index < 0 || index > 40) throw PlatformError::SubscriptOutOfRange();
  return ScreenRecordField(static_cast<Long>(index), rest.substr(dot + 1));
}

}  // namespace ferlan::tool
