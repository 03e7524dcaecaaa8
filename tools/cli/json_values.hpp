// Values between JSON and the component: numbers, texts, Booleans, objects
// by name. Texts are UTF-8; a text holding a lone surrogate, which UTF-8
// cannot carry, travels as {"u16":[units...]} both ways, so no 16-bit unit
// is ever lost.
#pragma once

#include <functional>
#include <string>

#include <nlohmann/json.hpp>

#include "ferlan/variant.hpp"

namespace ferlan::tool {

using Json = nlohmann::ordered_json;

// Finds a named object for {"obj":"NAME"}; nullptr when there is none.
using ObjectLookup = std::function<ObjectRef(const std::string& name)>;
// Gives the name of an object for answers; empty when it has none.
using ObjectNamer = std::function<std::string(const ObjectRef& object)>;

// A request value as a Variant. Raises a type mismatch (13) for what no
// parameter can take (arrays, other objects, unknown object names).
Variant JsonToVariant(const Json& value, const ObjectLookup& lookup);
Json VariantToJson(const Variant& value, const ObjectNamer& namer);

Json TextToJson(const String& text);

}  // namespace ferlan::tool
