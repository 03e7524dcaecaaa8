// The screen: its size in twips, fixed when the front-end starts.
#pragma once

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::forms {

class Screen final : public ferlan::Screen {
 public:
  Screen(Single width, Single height) : width_(width), height_(height) {}
  Single Width() const override { return width_; }
  Single Height() const override { return height_; }

 private:
  Single width_;
  Single height_;
};

}  // namespace ferlan::forms

FERLAN_PUBLIC_END
