#include "window/drawing_counter.hpp"

#include "raster/raster_canvas.hpp"

namespace ferlan::window {

namespace {

class CountingCanvas final : public forms::Canvas {
 public:
  CountingCanvas(std::unique_ptr<forms::Canvas> inner, DrawingCount count)
      : inner_(std::move(inner)), count_(std::move(count)) {}

  Single TextWidth(StringView text, const forms::FontSpec& font) override {
    return inner_->TextWidth(text, font);
  }
  Single TextHeight(StringView text, const forms::FontSpec& font) override {
    return inner_->TextHeight(text, font);
  }
  void Resize(Single width, Single height) override {
    ++*count_;
    inner_->Resize(width, height);
  }
  void Clear(Long colour) override {
    ++*count_;
    inner_->Clear(colour);
  }
  void FillBox(Single x1, Single y1, Single x2, Single y2, Long colour) override {
    ++*count_;
    inner_->FillBox(x1, y1, x2, y2, colour);
  }
  void Box(Single x1, Single y1, Single x2, Single y2, Long colour) override {
    ++*count_;
    inner_->Box(x1, y1, x2, y2, colour);
  }
  void Line(Single x1, Single y1, Single x2, Single y2, Long colour) override {
    ++*count_;
    inner_->Line(x1, y1, x2, y2, colour);
  }
  void Text(Single x, Single y, StringView text, const forms::FontSpec& font,
            Long colour) override {
    ++*count_;
    inner_->Text(x, y, text, font, colour);
  }
  PictureRef Snapshot() override { return inner_->Snapshot(); }
  void Paint(const Picture& picture, Single x, Single y) override {
    ++*count_;
    inner_->Paint(picture, x, y);
  }

 private:
  std::unique_ptr<forms::Canvas> inner_;
  DrawingCount count_;
};

}  // namespace

forms::CanvasFactory CountingRasterCanvases(DrawingCount count) {
  return [count = std::move(count)]() -> std::unique_ptr<forms::Canvas> {
    return std::make_unique<CountingCanvas>(std::make_unique<raster::RasterCanvas>(), count);
  };
}

}  // namespace ferlan::window
