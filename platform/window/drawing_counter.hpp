// Canvases that count what is drawn on them: the window front-end presents
// a frame only when the count moved (or a control moved, showed or hid), so
// an idle form costs no drawing at all.
#pragma once

#include <cstdint>
#include <memory>

#include "forms/canvas.hpp"

namespace ferlan::window {

// One count for every canvas of a window.
using DrawingCount = std::shared_ptr<std::uint64_t>;

// Raster canvases whose changes (drawing, clearing, resizing) add to `count`.
forms::CanvasFactory CountingRasterCanvases(DrawingCount count);

}  // namespace ferlan::window
