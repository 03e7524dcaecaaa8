// Plain controls of a form: a control with a place, a size and visibility,
// and the toolbar, a control docked along the top edge of its form.
#pragma once

#include "ferlan/host.hpp"
#include "forms/property_table.hpp"

namespace ferlan::forms {

// Left, Top, Width, Height (twips) and Visible, by name as well.
const PropertyTable<ferlan::Control>& ControlProperties();

class Control : public ferlan::Control {
 public:
  Single Left() const override { return left_; }
  void SetLeft(Single v) override { left_ = v; }
  Single Top() const override { return top_; }
  void SetTop(Single v) override { top_ = v; }
  Single Width() const override { return width_; }
  // Errors: 5 for a negative size, as the platform refuses it.
  void SetWidth(Single v) override;
  Single Height() const override { return height_; }
  void SetHeight(Single v) override;
  Boolean Visible() const override { return visible_; }
  void SetVisible(Boolean v) override { visible_ = v; }

  Variant GetProperty(std::string_view name) override;
  void SetProperty(std::string_view name, const Variant& value) override;

 private:
  Single left_ = 0;
  Single top_ = 0;
  Single width_ = 0;
  Single height_ = 0;
  Boolean visible_ = true;
};

// A toolbar: its form keeps it at the top left and as wide as the form's
// inner width; its Height and Visible are its own. The component reads both
// to know how much of the form the toolbar takes.
class Toolbar final : public Control {};

}  // namespace ferlan::forms
