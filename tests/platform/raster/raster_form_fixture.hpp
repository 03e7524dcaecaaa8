// A form drawn in pixels for the raster tests: the kit's environment in a
// fresh apartment, a 12000 x 9000 form with its toolbar, a bordered raster
// surface, the caret and the message zone, all named as the component
// reaches them.
#pragma once

#include <memory>

#include "ferlan/kysaisie.hpp"
#include "forms/control.hpp"
#include "forms/form.hpp"
#include "forms/picture_box.hpp"
#include "kit/kit.hpp"
#include "raster/raster_canvas.hpp"

namespace ferlan::raster {

inline ClassRegistry KitRegistry(const std::shared_ptr<kit::EnvState>& env,
                                 const std::shared_ptr<kit::Records>& records) {
  ClassRegistry registry;
  kit::RegisterKit(registry, env, records);
  return registry;
}

struct RasterForm {
  std::shared_ptr<kit::EnvState> env = std::make_shared<kit::EnvState>();
  std::shared_ptr<kit::Records> records = std::make_shared<kit::Records>();
  Apartment apartment{KitRegistry(env, records)};
  std::shared_ptr<forms::Form> form = std::make_shared<forms::Form>(1, 24000, 18000);
  std::shared_ptr<forms::Toolbar> toolbar = std::make_shared<forms::Toolbar>();
  std::shared_ptr<forms::PictureBox> surface = NewPictureBox();
  std::shared_ptr<forms::PictureBox> caret = NewPictureBox();
  std::shared_ptr<forms::PictureBox> zone = NewPictureBox();

  static std::shared_ptr<forms::PictureBox> NewPictureBox() {
    return std::make_shared<forms::PictureBox>(std::make_unique<RasterCanvas>());
  }

  RasterForm() {
    form->SetWidth(12000);
    form->SetHeight(9000);
    toolbar->SetHeight(420);
    toolbar->SetVisible(false);
    form->AddMember("BarreOutils", toolbar);
    surface->SetBorderStyle(1);
    surface->SetLeft(300);
    surface->SetTop(600);
    surface->SetWidth(9060);  // 600 x 400 pixels inside a 2-pixel border
    surface->SetHeight(6060);
    form->AddMember("ZoneAff", surface);
    caret->SetVisible(false);
    form->AddMember("Caret", caret);
    zone->SetVisible(false);
    form->AddMember("zoneMessage", zone);
    env->form = form;
    env->surface = surface;
  }
};

}  // namespace ferlan::raster
