#include "forms/picture_box.hpp"

#include <algorithm>

#include "forms/control.hpp"
#include "forms/property_table.hpp"

namespace ferlan::forms {

namespace {
const PropertyTable<PictureBox>& Properties() {
  using P = PictureBox;
  static const PropertyTable<P> table{
      ControlProperties(),
      {
          {"Font", [](P& p) -> Variant { return ObjectRef(p.FontRef()); }, nullptr},
          {"CurrentX", [](P& p) -> Variant { return p.CurrentX(); },
           [](P& p, const Variant& v) { p.SetCurrentX(VariantToSingle(v)); }},
          {"CurrentY", [](P& p) -> Variant { return p.CurrentY(); },
           [](P& p, const Variant& v) { p.SetCurrentY(VariantToSingle(v)); }},
          {"ScaleWidth", [](P& p) -> Variant { return p.ScaleWidth(); }, nullptr},
          {"ScaleHeight", [](P& p) -> Variant { return p.ScaleHeight(); }, nullptr},
          {"ScaleTop", [](P& p) -> Variant { return p.ScaleTop(); }, nullptr},
          {"BackColor", [](P& p) -> Variant { return p.BackColor(); },
           [](P& p, const Variant& v) { p.SetBackColor(VariantToLong(v)); }},
          {"BorderStyle", [](P& p) -> Variant { return p.BorderStyle(); },
           [](P& p, const Variant& v) { p.SetBorderStyle(VariantToInteger(v)); }},
          {"Picture", [](P& p) -> Variant { return ObjectRef(p.Picture()); },
           [](P& p, const Variant& v) { p.SetPicture(VariantAs<ferlan::Picture>(v)); }},
      }};
  return table;
}
}  // namespace

PictureBox::PictureBox(std::unique_ptr<Canvas> canvas) : canvas_(std::move(canvas)) {
  // Invariant: a control always has a canvas; a factory that gives none is a
  // bug of the front-end that assembled the form.
  if (!canvas_) throw PlatformError::ObjectNotSet();
  ResizeCanvas();
  canvas_->Clear(back_color_);
}

// A canvas that cannot take the new size (too large an image) keeps its old
// one, and so does the control: its size always is its canvas's.
template <class Undo>
void PictureBox::ResizeCanvasOrUndo(Undo undo) {
  try {
    ResizeCanvas();
  } catch (...) {
    undo();
    throw;
  }
}

void PictureBox::SetWidth(Single v) {
  const Single old = Width();
  Placed::SetWidth(v);
  ResizeCanvasOrUndo([&] { Placed::SetWidth(old); });
}

void PictureBox::SetHeight(Single v) {
  const Single old = Height();
  Placed::SetHeight(v);
  ResizeCanvasOrUndo([&] { Placed::SetHeight(old); });
}

void PictureBox::SetBorderStyle(Integer style) {
  if (style != 0 && style != 1) throw PlatformError::InvalidCall("BorderStyle");
  const Integer old = border_style_;
  border_style_ = style;
  ResizeCanvasOrUndo([&] { border_style_ = old; });
}

Single PictureBox::Border() const { return border_style_ == 1 ? kFixedSingleBorder : 0; }

Single PictureBox::ScaleWidth() const { return std::max<Single>(0, Width() - Border()); }

Single PictureBox::ScaleHeight() const { return std::max<Single>(0, Height() - Border()); }

void PictureBox::ResizeCanvas() { canvas_->Resize(ScaleWidth(), ScaleHeight()); }

Single PictureBox::TextWidth(StringView text) { return canvas_->TextWidth(text, font_->Face()); }

Single PictureBox::TextHeight(StringView text) {
  return canvas_->TextHeight(text, font_->Face());
}

void PictureBox::Cls() {
  canvas_->Clear(back_color_);
  current_x_ = 0;
  current_y_ = 0;
}

void PictureBox::FillBox(Single x1, Single y1, Single x2, Single y2, Long colour) {
  canvas_->FillBox(x1, y1, x2, y2, colour);
}

void PictureBox::Box(Single x1, Single y1, Single x2, Single y2, Long colour) {
  canvas_->Box(x1, y1, x2, y2, colour);
}

void PictureBox::Line(Single x1, Single y1, Single x2, Single y2, Long colour) {
  canvas_->Line(x1, y1, x2, y2, colour);
}

void PictureBox::Print(StringView text, Long colour) {
  canvas_->Text(current_x_, current_y_, text, font_->Face(), colour);
  current_x_ += TextWidth(text);
}

PictureRef PictureBox::Image() { return canvas_->Snapshot(); }

void PictureBox::PaintPicture(const PictureRef& picture, Single x, Single y) {
  if (!picture) throw PlatformError::ObjectNotSet();
  canvas_->Paint(*picture, x, y);
}

Variant PictureBox::GetProperty(std::string_view name) { return Properties().Get(*this, name); }

void PictureBox::SetProperty(std::string_view name, const Variant& value) {
  Properties().Set(*this, name, value);
}

}  // namespace ferlan::forms
