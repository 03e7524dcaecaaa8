// Late-bound access that an object does not offer, and creation of external
// objects by class name.
#include <algorithm>
#include <string>

#include "ferlan/host.hpp"

namespace ferlan {

Variant Object::GetProperty(std::string_view name) {
  throw PlatformError::MemberNotSupported(name);
}

void Object::SetProperty(std::string_view name, const Variant&) {
  throw PlatformError::MemberNotSupported(name);
}

void ClassRegistry::Register(std::string class_name, Factory factory) {
  auto it = std::find_if(entries_.begin(), entries_.end(),
                         [&](const Entry& e) { return e.name == class_name; });
  if (it != entries_.end()) {
    it->factory = std::move(factory);  // a later registration replaces the earlier
  } else {
    entries_.push_back({std::move(class_name), std::move(factory)});
  }
}

bool ClassRegistry::Has(std::string_view class_name) const {
  return std::any_of(entries_.begin(), entries_.end(),
                     [&](const Entry& e) { return e.name == class_name; });
}

ObjectRef ClassRegistry::Create(std::string_view class_name) const {
  for (const Entry& e : entries_) {
    if (e.name == class_name && e.factory) {
      ObjectRef object = e.factory();
      if (object) return object;
      break;
    }
  }
  throw PlatformError::CannotCreateObject(class_name);
}

}  // namespace ferlan
