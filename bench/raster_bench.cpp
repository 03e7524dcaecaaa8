// The raster surface's speed: measuring a text (every grid conversion
// measures), drawing glyphs, and redrawing one entry field of 40 characters
// the way the component does it (Aff: clear the box, paint its background,
// draw the text) on a form drawn in pixels.
//
// Goals: a measure of 40 characters under 5 us, a field redraw under 200 us.
// Reads: items_per_second of BM_Measure40 is measures a second, of
// BM_DrawGlyphs glyphs a second; the time of BM_RedrawField40 is one redraw.
#include <benchmark/benchmark.h>

#include <memory>

#include "ferlan/kysaisie.hpp"
#include "forms/form.hpp"
#include "forms/picture_box.hpp"
#include "kit/kit.hpp"
#include "raster/raster_canvas.hpp"

namespace {

using namespace ferlan;

const String kField = u"Soci\u00e9t\u00e9 Dupont & Fils, 12 rue des Lilas.";  // 40
const forms::FontSpec kSize10{10, false};

void BM_Measure40(benchmark::State& state) {
  raster::RasterCanvas canvas(1500, 300);
  benchmark::DoNotOptimize(canvas.TextWidth(kField, kSize10));  // fills the cache
  for (auto _ : state) benchmark::DoNotOptimize(canvas.TextWidth(kField, kSize10));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_Measure40);

void BM_MeasureT(benchmark::State& state) {
  raster::RasterCanvas canvas(1500, 300);
  for (auto _ : state) benchmark::DoNotOptimize(canvas.TextWidth(u"T", kSize10));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_MeasureT);

void BM_DrawGlyphs(benchmark::State& state) {
  raster::RasterCanvas canvas(9000, 600);
  canvas.Text(0, 0, kField, kSize10, 0);  // renders every glyph once
  for (auto _ : state) canvas.Text(105, 195, kField, kSize10, 0);
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kField.size()));
}
BENCHMARK(BM_DrawGlyphs);

// A form and a raster surface in the kit's environment, as a host sets them.
struct RasterSession {
  std::shared_ptr<kit::EnvState> env = std::make_shared<kit::EnvState>();
  std::shared_ptr<kit::Records> records = std::make_shared<kit::Records>();
  std::unique_ptr<Apartment> apartment;
  std::shared_ptr<forms::Form> form = std::make_shared<forms::Form>(1, 24000, 18000);
  std::shared_ptr<forms::PictureBox> surface =
      std::make_shared<forms::PictureBox>(std::make_unique<raster::RasterCanvas>());

  RasterSession() {
    ClassRegistry registry;
    kit::RegisterKit(registry, env, records);
    apartment = std::make_unique<Apartment>(std::move(registry));
    form->SetWidth(12000);
    form->SetHeight(9000);
    surface->SetWidth(9000);
    surface->SetHeight(6000);
    env->form = form;
    env->surface = surface;
  }
};

void BM_RedrawField40(benchmark::State& state) {
  RasterSession session;
  KySaisie ky;
  ky.AfficheT(390, 105, u"R", kField);
  for (auto _ : state) ky.AfficheT(390, 105, u"R", kField);
}
BENCHMARK(BM_RedrawField40)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
