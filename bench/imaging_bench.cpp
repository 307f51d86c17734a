// The operations on whole images, each form against the plain one. Argument 0
// is the plain form, 1 the best one of this processor.
#include <benchmark/benchmark.h>

#include "engine/noise_fill.h"
#include "imaging/box_blur.h"
#include "imaging/resample.h"
#include "imaging/smooth_relief.h"

namespace tarnwick {
namespace {

constexpr int kSide = 2000;

Isa FormOf(const benchmark::State& state) {
  return state.range(0) == 0 ? Isa::kPlain : BestIsa();
}

// Dust on slow waves: neither flat nor noise, as textures are.
ImagePtr Texture(int side) {
  ImagePtr image = MakeGrayImage({0, 0, side, side}, 0);
  std::uint32_t dice = 1;
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      dice = dice * 1664525U + 1013904223U;
      const unsigned wave = static_cast<unsigned>((x / 7 + y / 11) % 200);
      image->Pixels()[y * side + x] = static_cast<std::uint8_t>(wave + (dice >> 27));
    }
  }
  return image;
}

void CountPixels(benchmark::State& state, std::int64_t pixels) {
  state.SetItemsProcessed(state.iterations() * pixels);
}

void EnlargeTexture(benchmark::State& state) {
  const ImagePtr texture = Texture(700);
  ImagePtr scaled;
  for (auto _ : state) {
    benchmark::DoNotOptimize(ResampleImage(scaled, texture.get(), 2.87, 1, nullptr, FormOf(state)));
  }
  CountPixels(state, std::int64_t{scaled->Width()} * scaled->Height());
}
BENCHMARK(EnlargeTexture)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void ReduceTexture(benchmark::State& state) {
  const ImagePtr texture = Texture(kSide);
  ImagePtr scaled;
  for (auto _ : state) {
    benchmark::DoNotOptimize(ResampleImage(scaled, texture.get(), 1.0 / 3, 1));
  }
  CountPixels(state, std::int64_t{kSide} * kSide);
}
BENCHMARK(ReduceTexture)->Unit(benchmark::kMillisecond);

void SmoothHeights(benchmark::State& state) {
  const ImagePtr texture = Texture(kSide);
  for (auto _ : state) SmoothRelief(*texture, nullptr, FormOf(state));
  CountPixels(state, std::int64_t{kSide} * kSide);
}
BENCHMARK(SmoothHeights)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BlurMap(benchmark::State& state) {
  const ImagePtr map = Texture(kSide);
  for (auto _ : state) {
    benchmark::DoNotOptimize(BoxBlur(*map, static_cast<int>(state.range(0))));
  }
  CountPixels(state, std::int64_t{kSide} * kSide);
}
BENCHMARK(BlurMap)->ArgName("radius")->Arg(2)->Arg(400)->Unit(benchmark::kMillisecond);

void FillCoverageNoise(benchmark::State& state) {
  const ImagePtr map = MakeGrayImage({0, 0, kSide, kSide}, 3);
  const NoiseWindow window{123, 2.0 / kSide, 2.0 / kSide, 0, 0};
  for (auto _ : state) {
    benchmark::DoNotOptimize(FillNoise(*map, window, nullptr, nullptr, FormOf(state)));
  }
  CountPixels(state, std::int64_t{kSide} * kSide);
}
BENCHMARK(FillCoverageNoise)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnwick
