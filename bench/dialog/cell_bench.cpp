// A page of a drawer's cells with the effect on the document, its thumbnails at hand.
#include <benchmark/benchmark.h>

#include <algorithm>

#include "dialog/cells/cell_preview.h"
#include "dialog/preview/preview_stage.h"
#include "support/test_random.h"

namespace tarnwick {
namespace {

constexpr int kCells = 24;
constexpr PaneSize kPane = {400, 300};

ThumbnailPicture Noise() {
  ThumbnailPicture picture(kDrawerThumbnail.width, kDrawerThumbnail.height);
  testing::TestRandom random(3);
  for (std::size_t i = 0; i < picture.samples.size(); i += 3) {
    std::fill_n(&picture.samples[i], 3, random.Byte());
  }
  return picture;
}

void Page(benchmark::State& state, CellTarget target, int type) {
  testing::PreviewStage stage(testing::NoisyDocument(1200, 900, 4));
  stage.settings.WashType1 = stage.settings.SurfaceType1 = static_cast<std::uint8_t>(type);
  stage.settings.SurfaceHue = 20;
  stage.Open(kPane);
  CellPreview cells(stage.g, *stage.preview, "");
  cells.SetReliefFactor(0.5F);
  const ThumbnailPicture grey = Noise();
  for (auto _ : state) {
    cells.MakeBackdrop();
    for (int i = 0; i < kCells; ++i) {
      ThumbnailPicture picture = grey;
      (void)cells.Preview(target, {}, picture);
      benchmark::DoNotOptimize(picture.samples.data());
    }
  }
}

BENCHMARK_CAPTURE(Page, wash, CellTarget::kWash, 3)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Page, background, CellTarget::kBackground, 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Page, surface, CellTarget::kSurface, 0)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnwick
