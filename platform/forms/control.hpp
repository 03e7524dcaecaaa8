// Plain controls of a form: a control with a place, a size and visibility,
// and the toolbar, a control docked along the top edge of its form.
#pragma once

#include "ferlan/host.hpp"
#include "forms/placed.hpp"
#include "forms/property_table.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::forms {

// Left, Top, Width, Height (twips) and Visible, by name as well.
const PropertyTable<ferlan::Control>& ControlProperties();

class Control : public Placed<ferlan::Control> {
 public:
  Variant GetProperty(std::string_view name) override;
  void SetProperty(std::string_view name, const Variant& value) override;
};

// A toolbar: its form keeps it at the top left and as wide as the form's
// inner width; its Height and Visible are its own. The component reads both
// to know how much of the form the toolbar takes.
class Toolbar final : public Control {};

}  // namespace ferlan::forms

FERLAN_PUBLIC_END
