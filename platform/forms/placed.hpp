// A control's place and size on its form, in twips, and its visibility: the
// one implementation of those members for every kind of control.
#pragma once

#include <cmath>
#include <string>

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::forms {

// A size as the forms take it. Errors: 5 for a negative size, as the platform
// refuses it, and for one that is not a finite number, which no later
// measure could use.
inline Single CheckedSize(Single v, const char* name) {
  if (v < 0) throw PlatformError::InvalidCall(std::string("negative ") + name);
  if (!std::isfinite(v)) throw PlatformError::InvalidCall(std::string(name) + " not finite");
  return v;
}

// Implements the members of ferlan::Control for an Interface derived from it.
template <class Interface>
class Placed : public Interface {
 public:
  Single Left() const override { return left_; }
  void SetLeft(Single v) override { left_ = v; }
  Single Top() const override { return top_; }
  void SetTop(Single v) override { top_ = v; }
  Single Width() const override { return width_; }
  // Errors: 5 as CheckedSize says.
  void SetWidth(Single v) override { width_ = CheckedSize(v, "Width"); }
  Single Height() const override { return height_; }
  void SetHeight(Single v) override { height_ = CheckedSize(v, "Height"); }
  Boolean Visible() const override { return visible_; }
  void SetVisible(Boolean v) override { visible_ = v; }

 private:
  Single left_ = 0;
  Single top_ = 0;
  Single width_ = 0;
  Single height_ = 0;
  Boolean visible_ = true;
};

}  // namespace ferlan::forms

FERLAN_PUBLIC_END
