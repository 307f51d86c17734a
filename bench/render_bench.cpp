// Whole renders of a picture of 6 megapixels without textures' files: every
// effect works on the white stand-in, which costs what a texture costs.
// Argument: threads.
#include <benchmark/benchmark.h>

#include <vector>

#include "engine/apply_run.h"

namespace tarnwick {
namespace {

constexpr int kWidth = 3000;
constexpr int kHeight = 2000;

struct Look {
  const char* name;
  void (*change)(EffectSettings&);
};

const Look kLooks[] = {
    {"default", [](EffectSettings&) {}},
    {"patches", [](EffectSettings& s) { s.WashCoverage1 = 30; }},
    {"edge", [](EffectSettings& s) { s.WashEdgeDistance1 = s.WashEdgeSoftness1 = 20; }},
    {"perspective", [](EffectSettings& s) { s.SurfacePerspectiveOn = 1; }},
    {"colorize", [](EffectSettings& s) { s.SurfaceType1 = 0; }},
    {"hue", [](EffectSettings& s) { s.SurfaceHue = 20; }},
    {"vivid", [](EffectSettings& s) { s.SurfaceType1 = 4; }},
    {"two of each", [](EffectSettings& s) { s.SecondWashExists = s.SecondSurfaceExists = 1; }},
};

void Render(benchmark::State& state, const Look& look) {
  std::vector<std::uint8_t> picture(std::size_t{kWidth} * kHeight * 3);
  for (std::size_t i = 0; i < picture.size(); ++i) {
    picture[i] = static_cast<std::uint8_t>(i * 2654435761U >> 24);
  }
  std::vector<std::uint8_t> out(picture.size());
  ThreadPool pool(static_cast<int>(state.range(0)));
  PictureJob job;
  job.width = kWidth;
  job.height = kHeight;
  job.in = picture.data();
  job.out = out.data();
  job.inRowBytes = job.outRowBytes = std::ptrdiff_t{kWidth} * 3;
  job.textureFolder = "/nonexistent";
  job.pool = &pool;
  for (auto _ : state) {
    EffectSettings settings;
    SettingsSession session;
    ResetAllSettings(settings, session);
    look.change(settings);
    benchmark::DoNotOptimize(ApplyToPicture(settings, session, job));
  }
  state.SetItemsProcessed(state.iterations() * kWidth * kHeight);
}

const bool kRegistered = [] {
  for (const Look& look : kLooks) {
    const std::string name = std::string("Render/") + look.name;
    benchmark::RegisterBenchmark(name.c_str(), [&look](benchmark::State& s) { Render(s, look); })
        ->ArgName("threads")
        ->Arg(1)
        ->Arg(2)
        ->Unit(benchmark::kMillisecond)
        ->MeasureProcessCPUTime()
        ->UseRealTime();
  }
  return true;
}();

}  // namespace
}  // namespace tarnwick
