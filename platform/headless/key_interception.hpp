// The host's "ClavierKY" object: a flag, Interception, that the component
// writes around an entry when it wants the host to keep its own keys for
// itself. The headless host only keeps the value for tests to read.
#pragma once

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::headless {

class KeyInterception final : public Object {
 public:
  Boolean Interception() const { return interception_; }
  void SetInterception(Boolean v) { interception_ = v; }

  // "Interception" by name.
  Variant GetProperty(std::string_view name) override;
  void SetProperty(std::string_view name, const Variant& value) override;

 private:
  Boolean interception_ = false;
};

}  // namespace ferlan::headless

FERLAN_PUBLIC_END
