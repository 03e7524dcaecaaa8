// A form drawn in pixels for the raster tests: a headless session whose
// picture controls draw on raster canvases, with the surface moved inside the
// form so that the form's own back colour shows around it.
#pragma once

#include <memory>
#include <string_view>

#include "forms/control.hpp"
#include "forms/form.hpp"
#include "forms/picture_box.hpp"
#include "headless/session.hpp"
#include "kit/kit.hpp"
#include "raster/raster_canvas.hpp"

namespace ferlan::raster {

struct RasterForm {
  headless::Session session{RasterCanvasFactory()};
  kit::EnvState* env = &session.Env();
  std::shared_ptr<forms::Form> form = session.FormRef();
  std::shared_ptr<forms::Toolbar> toolbar = Member<forms::Toolbar>("BarreOutils");
  std::shared_ptr<forms::PictureBox> surface = session.SurfaceRef();
  std::shared_ptr<forms::PictureBox> caret = Member<forms::PictureBox>("Caret");
  std::shared_ptr<forms::PictureBox> zone = Member<forms::PictureBox>("zoneMessage");

  RasterForm() {
    surface->SetLeft(300);
    surface->SetTop(600);
    surface->SetWidth(9060);  // 600 x 400 pixels inside a 2-pixel border
    surface->SetHeight(6060);
  }

  // The session's environment for a kit object that wants to share it; valid
  // while the session lives.
  std::shared_ptr<kit::EnvState> EnvRef() const { return {std::shared_ptr<void>(), env}; }

 private:
  template <typename T>
  std::shared_ptr<T> Member(std::string_view name) {
    return std::dynamic_pointer_cast<T>(form->Member(name));
  }
};

}  // namespace ferlan::raster
