#include "cli/surface_choice.hpp"

#include "headless/fixed_canvas.hpp"
#if FERLAN_HAVE_RASTER
#include "raster/raster_canvas.hpp"
#endif

namespace ferlan::tool {

std::optional<SurfaceKind> SurfaceByName(std::string_view name) {
  if (name == "fixed") return SurfaceKind::Fixed;
#if FERLAN_HAVE_RASTER
  if (name == "raster") return SurfaceKind::Raster;
#endif
  return std::nullopt;
}

forms::CanvasFactory CanvasFor(SurfaceKind kind) {
#if FERLAN_HAVE_RASTER
  if (kind == SurfaceKind::Raster) return raster::RasterCanvasFactory();
#endif
  (void)kind;
  return headless::FixedCanvasFactory();
}

}  // namespace ferlan::tool
