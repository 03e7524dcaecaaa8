#include "cli/json_values.hpp"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace ferlan::tool {

namespace {

bool HasLoneSurrogate(const String& text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t c = text[i];
    if (c >= 0xD800 && c <= 0xDBFF) {
      if (i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF) {
        ++i;
        continue;
      }
      return true;
    }
    if (c >= 0xDC00 && c <= 0xDFFF) return true;
  }
  return false;
}

// Whole numbers print without a fraction: 105, not 105.0.
Json NumberToJson(Double value) {
  if (std::isfinite(value) && value == std::floor(value) && std::fabs(value) < 9.0e15) {
    return static_cast<long long>(value);
  }
  if (!std::isfinite(value)) return nullptr;
  return value;
}

// A Single prints with its own shortest digits, not those of the double it
// widens to (0.1f stays 0.1).
Json SingleToJson(Single value) {
  char buffer[32];
  auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value);
  if (ec != std::errc{}) return NumberToJson(value);
  Double widened = 0;
  std::from_chars(buffer, end, widened);
  return NumberToJson(widened);
}

}  // namespace

Json TextToJson(const String& text) {
  if (!HasLoneSurrogate(text)) return ToUtf8(text);
  Json units = Json::array();
  for (char16_t c : text) units.push_back(static_cast<unsigned>(c));
  return Json{{"u16", units}};
}

Variant JsonToVariant(const Json& value, const ObjectLookup& lookup) {
  switch (value.type()) {
    case Json::value_t::null:
      return ObjectRef{};  // Nothing
    case Json::value_t::boolean:
      return value.get<bool>();
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned: {
      const Double d = value.get<Double>();
      if (d >= std::numeric_limits<Long>::min() && d <= std::numeric_limits<Long>::max()) {
        return static_cast<Long>(d);
      }
      return d;
    }
    case Json::value_t::number_float:
      return value.get<Double>();
    case Json::value_t::string:
      return FromUtf8(value.get<std::string>());
    case Json::value_t::object:
      if (value.size() == 1 && value.contains("obj") && value["obj"].is_string()) {
        const std::string name = value["obj"].get<std::string>();
        ObjectRef object = lookup(name);
        if (!object) throw PlatformError::TypeMismatch("no object named \"" + name + "\"");
        return object;
      }
      if (value.size() == 1 && value.contains("u16") && value["u16"].is_array()) {
        String text;
        for (const Json& unit : value["u16"]) {
          if (!unit.is_number_unsigned() || unit.get<std::uint64_t>() > 0xFFFF) {
            throw PlatformError::TypeMismatch("u16 holds numbers from 0 to 65535");
          }
          text += static_cast<char16_t>(unit.get<std::uint64_t>());
        }
        return text;
      }
      throw PlatformError::TypeMismatch("an object value must be {\"obj\":NAME} or {\"u16\":[...]}");
    default:
      throw PlatformError::TypeMismatch("arrays are not values");
  }
}

Json VariantToJson(const Variant& value, const ObjectNamer& namer) {
  return std::visit(
      [&](const auto& x) -> Json {
        using T = std::decay_t<decltype(x)>;
        if constexpr (std::is_same_v<T, Empty>) {
          return nullptr;
        } else if constexpr (std::is_same_v<T, Boolean>) {
          return x;
        } else if constexpr (std::is_same_v<T, Single>) {
          return SingleToJson(x);
        } else if constexpr (std::is_same_v<T, Double>) {
          return NumberToJson(x);
        } else if constexpr (std::is_same_v<T, String>) {
          return TextToJson(x);
        } else if constexpr (std::is_same_v<T, ObjectRef>) {
          if (!x) return nullptr;
          const std::string name = namer(x);
          return Json{{"obj", name.empty() ? "?" : name}};
        } else {
          return x;  // Integer, Long
        }
      },
      value);
}

}  // namespace ferlan::tool
