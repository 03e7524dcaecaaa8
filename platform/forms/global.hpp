// The forms runtime's global object over a front-end's event loop: the
// clipboard, the screen, DoEvents, the component's timers and LoadPicture.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

#include "ferlan/host.hpp"
#include "forms/clipboard.hpp"
#include "forms/event_loop.hpp"
#include "forms/screen.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::forms {

// Turns the bytes of an image into a picture; errors as LoadPicture's.
using PictureDecoder = std::function<PictureRef(std::span<const std::uint8_t>)>;

class Global final : public ferlan::Global {
 public:
  // Pre: `loop` outlives this object. `clipboard` may be null for the
  // in-process text clipboard.
  Global(EventLoop& loop, forms::Screen screen,
         std::unique_ptr<ferlan::Clipboard> clipboard = nullptr);

  ferlan::Clipboard& Clipboard() override { return *clipboard_; }
  ferlan::Screen& Screen() override { return screen_; }
  void DoEvents() override { loop_.DoEvents(); }
  TimerRef CreateTimer(std::function<void()> on_tick) override;
  // BMP images are read here; PNG images go to the decoder a raster back-end
  // gives with SetPngDecoder. Errors: 445 for a PNG image with no decoder,
  // 5 for bytes that are neither or are malformed.
  PictureRef LoadPicture(std::span<const std::uint8_t> image) override;
  void SetPngDecoder(PictureDecoder decoder) { png_decoder_ = std::move(decoder); }

 private:
  EventLoop& loop_;
  forms::Screen screen_;
  std::unique_ptr<ferlan::Clipboard> clipboard_;
  PictureDecoder png_decoder_;
};

}  // namespace ferlan::forms

FERLAN_PUBLIC_END
