// A form: place, size, window state, caption and the host's event handlers,
// with its controls and objects reached by name. The border and caption
// take a fixed room, so the inner size is the outer size less kBorderX and
// kBorderY in every window state.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::forms {

class Form final : public ferlan::Form {
 public:
  // Width - ScaleWidth: a sizable frame of 4 pixels each side.
  static constexpr Single kBorderX = 120;
  // Height - ScaleHeight: the same frame and a caption bar of 22 pixels.
  static constexpr Single kBorderY = 450;

  // `hwnd` is the handle the form reports; a maximised form takes the
  // outer size (`maximised_width`, `maximised_height`), in twips.
  Form(Long hwnd, Single maximised_width, Single maximised_height);

  Single Left() const override { return left_; }
  void SetLeft(Single v) override { left_ = v; }
  Single Top() const override { return top_; }
  void SetTop(Single v) override { top_ = v; }
  // The outer size in the present window state. Setting it sets the size of
  // the normal state (5 for a negative size); while the form is maximised or
  // minimised that size is kept for when it is restored. A change of the
  // size that shows runs on_resize.
  Single Width() const override;
  void SetWidth(Single v) override;
  Single Height() const override;
  void SetHeight(Single v) override;
  Single ScaleWidth() const override;
  Single ScaleHeight() const override;
  // 0 normal, 1 minimised (keeps the normal size), 2 maximised; errors: 5
  // for another value. A change runs on_resize.
  Integer WindowState() const override { return window_state_; }
  void SetWindowState(Integer v) override;
  // 0 to 5 as on the platform (2 is sizable); errors: 5 for another value.
  // The frame's room stays kBorderX by kBorderY whatever the style.
  Long BorderStyle() const override { return border_style_; }
  void SetBorderStyle(Long v) override;
  Boolean KeyPreview() const override { return key_preview_; }
  void SetKeyPreview(Boolean v) override { key_preview_ = v; }
  String Caption() const override { return caption_; }
  void SetCaption(const String& v) override { caption_ = v; }
  Long hWnd() const override { return hwnd_; }

  // Adds or replaces the member `name`. A Toolbar member is docked: kept at
  // the top left and as wide as ScaleWidth.
  void AddMember(std::string name, ObjectRef object);
  // Errors: 438 when the form has no member of that name.
  ObjectRef Member(std::string_view name) override;
  std::uint64_t MembersVersion() const override { return members_version_; }
  // The picture controls made for this form, members or not (a host's own
  // control, a substitute surface), held weakly, in the order made.
  void AddControl(const std::shared_ptr<Object>& control);
  std::vector<ObjectRef> Controls() const;

  // The host's event handlers; each may call back into the component.
  std::function<void(Integer& KeyCode, Integer Shift)> on_key_down;
  std::function<void(Integer& KeyAscii)> on_key_press;
  std::function<void()> on_resize;

  // Front-ends raise the form's events through these.
  void RaiseKeyDown(Integer& KeyCode, Integer Shift);
  void RaiseKeyPress(Integer& KeyAscii);

  // Properties by name, then members by name (Form.Caret gives the control).
  Variant GetProperty(std::string_view name) override;
  void SetProperty(std::string_view name, const Variant& value) override;

 private:
  // Docks the toolbars and runs on_resize when the size that shows is no
  // longer `old_width` by `old_height`.
  void SizeChanged(Single old_width, Single old_height);
  void DockToolbars();

  Long hwnd_;
  Single maximised_width_;
  Single maximised_height_;
  Single left_ = 0;
  Single top_ = 0;
  Single width_ = 0;
  Single height_ = 0;
  Integer window_state_ = 0;
  Long border_style_ = 2;
  Boolean key_preview_ = false;
  String caption_;
  std::vector<std::pair<std::string, ObjectRef>> members_;
  std::uint64_t members_version_;
  std::vector<std::weak_ptr<Object>> controls_;
};

}  // namespace ferlan::forms

FERLAN_PUBLIC_END
