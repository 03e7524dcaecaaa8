// The surfaces `ferlan automate` can run on, chosen by name in one place.
#pragma once

#include <optional>
#include <string_view>

#include "forms/canvas.hpp"

namespace ferlan::tool {

enum class SurfaceKind { Fixed, Raster };

// "fixed" or "raster"; nullopt for any other name. "raster" exists only
// when the raster back-end was built.
std::optional<SurfaceKind> SurfaceByName(std::string_view name);
forms::CanvasFactory CanvasFor(SurfaceKind kind);

}  // namespace ferlan::tool
