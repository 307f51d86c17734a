// A page of a drawer's cells: its thumbnails from the textures and from the disk, and
// the effect on the document in them.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "dialog/cells/cell_preview.h"
#include "dialog/preview/preview_stage.h"
#include "support/temp_folder.h"
#include "support/test_random.h"
#include "textures/texture_thumbnail.h"
#include "textures/thumbnail_file.h"
#include "textures/wash_file_writer.h"

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

std::string NameOfCell(int cell) {
  return "Texture_" + std::to_string(cell) + ".twk";
}

// As large as the library's, and packed about as well: 5 bits of noise on a slope.
void PutTextures(const std::string& folder) {
  WashFileHeader header;
  header.width = 2048;
  header.height = 1536;
  testing::TestRandom random(1);
  std::vector<std::uint8_t> samples;
  for (int y = 0; y < header.height; ++y) {
    for (int x = 0; x < header.width; ++x) {
      samples.push_back(static_cast<std::uint8_t>((x + y) / 16 % 224 + random.Below(32)));
    }
  }
  const std::string first = folder + "/" + NameOfCell(0);
  if (WriteWashFile(first, header, samples) != WashWriteOutcome::kDone) std::abort();
  for (int i = 1; i < kCells; ++i) {
    std::filesystem::copy_file(first, folder + "/" + NameOfCell(i));
  }
}

void Thumbnails(benchmark::State& state, bool areKept) {
  const testing::TempFolder folder;
  PutTextures(folder.Path());
  const auto load = [&] {
    for (int i = 0; i < kCells; ++i) {
      TextureRecord record;
      record.fileName = NameOfCell(i);
      benchmark::DoNotOptimize(LoadOrMakeThumbnail(folder.Path(), record, kDrawerThumbnail, true));
    }
  };
  load();
  for (auto _ : state) {
    if (!areKept) {
      state.PauseTiming();
      for (int i = 0; i < kCells; ++i) {
        std::filesystem::remove(ThumbnailPath(folder.Path(), NameOfCell(i)));
      }
      state.ResumeTiming();
    }
    load();
  }
}

BENCHMARK_CAPTURE(Thumbnails, made, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Thumbnails, kept, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Page, wash, CellTarget::kWash, 3)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Page, background, CellTarget::kBackground, 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Page, surface, CellTarget::kSurface, 0)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnwick
