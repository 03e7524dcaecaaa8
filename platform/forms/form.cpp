#include "forms/form.hpp"

#include <algorithm>
#include <atomic>

#include "forms/control.hpp"
#include "forms/placed.hpp"
#include "forms/property_table.hpp"

namespace ferlan::forms {

namespace {

// Versions of members, one count for every form, so that no two forms share one.
std::uint64_t NextMembersVersion() {
  static std::atomic<std::uint64_t> last{0};
  return ++last;
}

const PropertyTable<Form>& Properties() {
  static const PropertyTable<Form> table{
      {"Left", [](Form& f) -> Variant { return f.Left(); },
       [](Form& f, const Variant& v) { f.SetLeft(VariantToSingle(v)); }},
      {"Top", [](Form& f) -> Variant { return f.Top(); },
       [](Form& f, const Variant& v) { f.SetTop(VariantToSingle(v)); }},
      {"Width", [](Form& f) -> Variant { return f.Width(); },
       [](Form& f, const Variant& v) { f.SetWidth(VariantToSingle(v)); }},
      {"Height", [](Form& f) -> Variant { return f.Height(); },
       [](Form& f, const Variant& v) { f.SetHeight(VariantToSingle(v)); }},
      {"ScaleWidth", [](Form& f) -> Variant { return f.ScaleWidth(); }, nullptr},
      {"ScaleHeight", [](Form& f) -> Variant { return f.ScaleHeight(); }, nullptr},
      {"WindowState", [](Form& f) -> Variant { return f.WindowState(); },
       [](Form& f, const Variant& v) { f.SetWindowState(VariantToInteger(v)); }},
      {"BorderStyle", [](Form& f) -> Variant { return f.BorderStyle(); },
       [](Form& f, const Variant& v) { f.SetBorderStyle(VariantToLong(v)); }},
      {"KeyPreview", [](Form& f) -> Variant { return f.KeyPreview(); },
       [](Form& f, const Variant& v) { f.SetKeyPreview(VariantToBoolean(v)); }},
      {"Caption", [](Form& f) -> Variant { return f.Caption(); },
       [](Form& f, const Variant& v) { f.SetCaption(VariantToString(v)); }},
      {"hWnd", [](Form& f) -> Variant { return f.hWnd(); }, nullptr},
  };
  return table;
}
}  // namespace

Form::Form(Long hwnd, Single maximised_width, Single maximised_height)
    : hwnd_(hwnd),
      maximised_width_(maximised_width),
      maximised_height_(maximised_height),
      members_version_(NextMembersVersion()) {}

Single Form::Width() const { return window_state_ == 2 ? maximised_width_ : width_; }

Single Form::Height() const { return window_state_ == 2 ? maximised_height_ : height_; }

void Form::SetWidth(Single v) {
  CheckedSize(v, "Width");
  const Single old_width = Width();
  const Single old_height = Height();
  width_ = v;
  SizeChanged(old_width, old_height);
}

void Form::SetHeight(Single v) {
  CheckedSize(v, "Height");
  const Single old_width = Width();
  const Single old_height = Height();
  height_ = v;
  SizeChanged(old_width, old_height);
}

Single Form::ScaleWidth() const { return std::max<Single>(0, Width() - kBorderX); }

Single Form::ScaleHeight() const { return std::max<Single>(0, Height() - kBorderY); }

void Form::SetWindowState(Integer v) {
  if (v < 0 || v > 2) throw PlatformError::InvalidCall("WindowState");
  if (v == window_state_) return;
  window_state_ = v;
  // A change of state is a resize on the platform even when the numbers
  // stay, as minimising keeps them here.
  DockToolbars();
  if (on_resize) on_resize();
}

void Form::SetBorderStyle(Long v) {
  if (v < 0 || v > 5) throw PlatformError::InvalidCall("BorderStyle");
  border_style_ = v;
}

void Form::DockToolbars() {
  for (auto& [name, object] : members_) {
    if (auto bar = std::dynamic_pointer_cast<Toolbar>(object)) {
      bar->SetLeft(0);
      bar->SetTop(0);
      bar->SetWidth(ScaleWidth());
    }
  }
}

void Form::SizeChanged(Single old_width, Single old_height) {
  DockToolbars();
  if ((Width() != old_width || Height() != old_height) && on_resize) on_resize();
}

void Form::AddMember(std::string name, ObjectRef object) {
  auto it = std::find_if(members_.begin(), members_.end(),
                         [&](const auto& m) { return SameName(m.first, name); });
  if (it != members_.end()) {
    it->second = std::move(object);
  } else {
    members_.emplace_back(std::move(name), std::move(object));
  }
  members_version_ = NextMembersVersion();
  DockToolbars();
}

void Form::AddControl(const std::shared_ptr<Object>& control) {
  std::erase_if(controls_, [](const std::weak_ptr<Object>& c) { return c.expired(); });
  controls_.push_back(control);
}

std::vector<ObjectRef> Form::Controls() const {
  std::vector<ObjectRef> live;
  for (const std::weak_ptr<Object>& c : controls_) {
    if (ObjectRef control = c.lock()) live.push_back(std::move(control));
  }
  return live;
}

ObjectRef Form::Member(std::string_view name) {
  for (const auto& [member_name, object] : members_) {
    if (SameName(member_name, name)) return object;
  }
  throw PlatformError::MemberNotSupported(name);
}

void Form::RaiseKeyDown(Integer& KeyCode, Integer Shift) {
  if (on_key_down) on_key_down(KeyCode, Shift);
}

void Form::RaiseKeyPress(Integer& KeyAscii) {
  if (on_key_press) on_key_press(KeyAscii);
}

Variant Form::GetProperty(std::string_view name) {
  if (Properties().Find(name)) return Properties().Get(*this, name);
  return Member(name);
}

void Form::SetProperty(std::string_view name, const Variant& value) {
  Properties().Set(*this, name, value);
}

}  // namespace ferlan::forms
