// The picture control: the component's drawing surface, its caret and its
// message zone. The control keeps its properties (place, size, border, font,
// drawing position, back colour, picture) and asks its Canvas to measure and
// to paint. Its scale is twips with ScaleTop 0, the inner area being the
// control's size less its border.
#pragma once

#include <memory>

#include "ferlan/host.hpp"
#include "forms/canvas.hpp"
#include "forms/font.hpp"
#include "forms/placed.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::forms {

class PictureBox final : public Placed<ferlan::PictureBox> {
 public:
  // Width - ScaleWidth (and Height - ScaleHeight) of a control with a fixed
  // single border: two pixels each side.
  static constexpr Single kFixedSingleBorder = 60;
  // White, so that a fresh surface and a cleared one look alike.
  static constexpr Long kDefaultBackColor = 0x00FFFFFF;

  // Invariant: `canvas` is not null; the control owns it and keeps it the
  // size of the inner area.
  explicit PictureBox(std::unique_ptr<Canvas> canvas);

  // Control: the canvas follows the inner size.
  void SetWidth(Single v) override;
  void SetHeight(Single v) override;

  // 0 none, 1 fixed single; errors: 5 for any other style.
  Integer BorderStyle() const { return border_style_; }
  void SetBorderStyle(Integer style);
  // Width - ScaleWidth.
  Single Border() const;

  // PictureBox.
  ferlan::Font& Font() override { return *font_; }
  std::shared_ptr<forms::Font> FontRef() const { return font_; }
  Single TextWidth(StringView text) override;
  Single TextHeight(StringView text) override;
  Single CurrentX() const override { return current_x_; }
  void SetCurrentX(Single v) override { current_x_ = v; }
  Single CurrentY() const override { return current_y_; }
  void SetCurrentY(Single v) override { current_y_ = v; }
  Single ScaleWidth() const override;
  Single ScaleHeight() const override;
  Single ScaleTop() const override { return 0; }
  Long BackColor() const override { return back_color_; }
  void SetBackColor(Long colour) override { back_color_ = colour; }
  // The picture the control shows as its background; drawing calls leave
  // it alone and a front-end shows it under what is drawn.
  PictureRef Picture() const override { return picture_; }
  void SetPicture(PictureRef picture) override { picture_ = std::move(picture); }

  void Cls() override;
  void FillBox(Single x1, Single y1, Single x2, Single y2, Long colour) override;
  void Box(Single x1, Single y1, Single x2, Single y2, Long colour) override;
  void Line(Single x1, Single y1, Single x2, Single y2, Long colour) override;
  void Print(StringView text, Long colour) override;
  PictureRef Image() override;
  // Errors: 91 for Nothing.
  void PaintPicture(const PictureRef& picture, Single x, Single y) override;

  Canvas& GetCanvas() { return *canvas_; }

  Variant GetProperty(std::string_view name) override;
  void SetProperty(std::string_view name, const Variant& value) override;

 private:
  void ResizeCanvas();
  template <class Undo>
  void ResizeCanvasOrUndo(Undo undo);

  std::unique_ptr<Canvas> canvas_;
  std::shared_ptr<forms::Font> font_ = std::make_shared<forms::Font>();
  Integer border_style_ = 0;
  Single current_x_ = 0;
  Single current_y_ = 0;
  Long back_color_ = kDefaultBackColor;
  PictureRef picture_;
};

}  // namespace ferlan::forms

FERLAN_PUBLIC_END
