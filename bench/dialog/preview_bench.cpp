// From a released slider to the pane's picture: 24 megapixels at fit, every effect
// at work, textures of the library's size.
#include <benchmark/benchmark.h>

#include <functional>

#include "dialog/preview/preview_stage.h"
#include "engine/coverage.h"
#include "engine/layer_edit.h"
#include "engine/wash_edge.h"
#include "support/temp_folder.h"
#include "support/test_random.h"
#include "textures/wash_file_writer.h"

namespace tarnwick {
namespace {

using testing::PreviewStage;

constexpr int kWidth = 6000;
constexpr int kHeight = 4000;
constexpr PaneSize kPane = {1060, 760};

// Packs about as well as the library's: 5 bits of noise on a slope.
void PutTexture(const std::string& path) {
  WashFileHeader header;
  header.width = 2048;
  header.height = 1536;
  testing::TestRandom random(1);
  std::vector<std::uint8_t> samples;
  for (int y = 0; y < 1536; ++y) {
    for (int x = 0; x < 2048; ++x) {
      samples.push_back(static_cast<std::uint8_t>((x + y) / 16 % 224 + random.Below(32)));
    }
  }
  if (WriteWashFile(path, header, samples) != WashWriteOutcome::kDone) std::abort();
}

testhost::Document Photograph() {
  testhost::Document document = testing::NoisyDocument(kWidth, kHeight, 3);
  return document;
}

// One stage for all: opening takes longer than any of the rest.
struct Bench {
  testing::TempFolder folder;
  PreviewStage stage{Photograph()};

  Bench() {
    for (const char* name : {"General_Store", "Battleship", "Rusted"}) {
      PutTexture(folder.Path() + '/' + name + ".twk");
    }
    stage.g.folders.dataFolder = folder.Path();
    EffectSettings& s = stage.settings;
    std::snprintf(s.WashFileName1, sizeof s.WashFileName1, "General_Store.twk");
    std::snprintf(s.SurfaceFileName1, sizeof s.SurfaceFileName1, "Battleship.twk");
    std::snprintf(s.BackgroundFileName, sizeof s.BackgroundFileName, "Rusted.twk");
    s.WashCoverage1 = 20;
    stage.Open(kPane);
    (void)stage.preview->ZoomToFit(kPane);
    stage.preview->Render(ViewMode::kComposite);
  }
};

Bench& TheBench() {
  static Bench bench;
  return bench;
}

struct Change {
  const char* name;
  std::function<void(PreviewStage&, int round)> make;
};

const Change kChanges[] = {
    {"nothing", [](PreviewStage&, int) {}},
    {"surface brightness",
     [](PreviewStage& s, int i) {
       s.settings.SurfaceBrightness = 50 + i % 100;
       s.preview->SurfaceChanged();
     }},
    {"background tones",
     [](PreviewStage& s, int i) {
       s.settings.BackgroundHue = i % 100;
       s.g.layers.background.toneDirty = true;
     }},
    {"wash intensity",
     [](PreviewStage& s, int i) { SetIntensity(s.g.layers.washes[0], 50 + i % 100); }},
    {"wash coverage",
     [](PreviewStage& s, int i) { SetCoverage(s.g.layers.washes[0], s.g.render, 10 + i % 50); }},
    {"wash seed", [](PreviewStage& s, int i) { SetSeed(s.g.layers.washes[0], i); }},
    {"edge softness",
     [](PreviewStage& s, int i) { SetEdgeSoftness(s.g.layers.washes[0], 20 + i % 50); }},
    {"no edge softness", [](PreviewStage& s, int) { SetEdgeSoftness(s.g.layers.washes[0], 0); }},
    {"wash scale",
     [](PreviewStage& s, int i) { SetScale(s.g.layers.washes[0], s.g.render, 1 + i % 199); }},
    {"wash scale, largest",
     [](PreviewStage& s, int i) { SetScale(s.g.layers.washes[0], s.g.render, 190 + i % 10); }},
    {"surface scale, largest",
     [](PreviewStage& s, int i) { SetScale(s.g.layers.surfaces[0], s.g.render, 190 + i % 10); }},
    {"texture drag",
     [](PreviewStage& s, int i) {
       (void)s.preview->MoveActiveOffset(EffectPage::kWash, ViewMode::kComposite,
                                         i % 2 == 0 ? 9 : -9, 3);
     }},
    {"wash flip",
     [](PreviewStage& s, int) { ToggleFlipVertical(s.g.layers.washes[0], s.g.render); }},
    {"zoom in and out",
     [](PreviewStage& s, int i) {
       (void)(i % 2 == 0 ? s.preview->ZoomIn(kPane) : s.preview->ZoomOut(kPane));
     }},
    {"all layers", [](PreviewStage& s, int) { s.preview->RemakeLayers(); }},
};

const bool kRegistered = [] {
  for (const Change& change : kChanges) {
    const std::string name = std::string("Preview/") + change.name;
    benchmark::RegisterBenchmark(name.c_str(),
                                 [&change](benchmark::State& state) {
                                   PreviewStage& stage = TheBench().stage;
                                   int round = 0;
                                   for (auto _ : state) {
                                     change.make(stage, ++round);
                                     stage.preview->Render(ViewMode::kComposite);
                                     benchmark::DoNotOptimize(stage.preview->BuildPaneImage(kPane));
                                   }
                                 })
        ->Unit(benchmark::kMillisecond)
        ->Iterations(10)
        ->MeasureProcessCPUTime()
        ->UseRealTime();
  }
  return true;
}();

}  // namespace
}  // namespace tarnwick
