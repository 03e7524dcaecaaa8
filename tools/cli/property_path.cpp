#include "cli/property_path.hpp"

#include "ferlan/host.hpp"

namespace ferlan::tool {

std::pair<ObjectRef, std::string> ResolveMember(ObjectRef object, const std::string& members,
                                                const std::string& path) {
  std::string rest = members;
  for (auto dot = rest.find('.'); dot != std::string::npos; dot = rest.find('.')) {
    if (!object) break;
    const Variant step = object->GetProperty(rest.substr(0, dot));
    const ObjectRef* inner = std::get_if<ObjectRef>(&step);
    object = inner != nullptr ? *inner : nullptr;
    rest.erase(0, dot + 1);
  }
  if (!object || rest.empty()) throw PlatformError::MemberNotSupported(path);
  return {object, rest};
}

}  // namespace ferlan::tool
