// Values under tests/data/golden/unit and the stages of some recorded pictures,
// from an implementation that shares nothing with this one.
#include <gtest/gtest.h>

#include <fstream>

#include "engine/coverage.h"
#include "engine/distance_field.h"
#include "engine/golden_cases.h"
#include "engine/intensity_table.h"
#include "engine/perlin_noise.h"
#include "engine/reference_masks.h"
#include "engine/stepped_render.h"
#include "engine/wash_edge.h"
#include "imaging/fill.h"
#include "support/flat_json.h"
#include "support/images.h"
#include "textures/texture_load.h"

namespace tarnwick::testing {
namespace {

const std::string kFolder = GoldenFolder() + "unit/";

TEST(Recorded, NoiseTables) {
  for (const std::uint32_t seed : {0U, 1U, 123U, 999U, 65536U}) {
    const PerlinNoise noise(seed);
    std::ifstream lines(kFolder + "noise-tables-" + std::to_string(seed) + ".txt");
    for (std::size_t i = 0; i < 512; ++i) {
      int entry = noise.permutation[i - 256 * (i / 256)];
      double x = noise.gradientX[i & 255];
      double y = noise.gradientY[i & 255];
      if (i < 256) lines >> entry >> x >> y;
      ASSERT_TRUE(lines.good()) << seed;
      ASSERT_EQ(noise.permutation[i], entry) << "seed " << seed << " entry " << i;
      ASSERT_EQ(noise.gradientX[i], x) << "seed " << seed << " entry " << i;
      ASSERT_EQ(noise.gradientY[i], y) << "seed " << seed << " entry " << i;
    }
  }
}

TEST(Recorded, IntensityTables) {
  for (const auto& [parameter, entries] : ReadFlatJson(kFolder + "intensity-tables.json")) {
    EffectLayer layer;
    BuildIntensityTable(layer, std::stoi(parameter));
    ASSERT_EQ(entries.size(), 256U);
    for (std::size_t i = 0; i < 256; ++i) {
      EXPECT_EQ(int{layer.intensityTable[i]}, std::stoi(entries[i])) << parameter << " at " << i;
    }
  }
}

TEST(Recorded, EffectiveScales) {
  const std::vector<std::string> numbers = ReadFlatJson(kFolder + "effective-scales.json")[""];
  ASSERT_GE(numbers.size(), 30U);
  for (std::size_t i = 0; i + 5 < numbers.size(); i += 6) {
    const auto at = [&](std::size_t k) { return std::stoi(numbers[i + k]); };
    EXPECT_EQ(EffectiveScale(at(0), at(1), at(2), at(3), at(4)), std::stod(numbers[i + 5])) << i;
  }
}

// A wash over the recorded selection, ready for its edge.
struct EdgeBench {
  EdgeBench() : plane(ReadPnm(kFolder + "selection.pgm")) {
    state.renderWidth = state.documentWidth = plane.width;
    state.renderHeight = state.documentHeight = plane.height;
    state.hasSelection = true;
    state.selection = state.selectionPlane = plane.samples.data();
    state.selectionRowBytes = plane.width;
    layer.texture = layer.working = GrayOf(plane);
    BuildSelectionMap(layer, state);
  }
  Pnm plane;
  RenderState state;
  EffectLayer layer;
};

TEST(Recorded, EdgeMaps) {
  for (const auto& [distance, softness] :
       {std::pair{0, 0}, {30, 0}, {100, 0}, {0, 200}, {20, 40}}) {
    EdgeBench bench;
    const std::string name = "edge-" + std::to_string(distance) + "-" + std::to_string(softness);
    SetEdgeSoftness(bench.layer, softness);
    SetEdgeDistance(bench.layer, distance);
    BuildEdgeMap(bench.layer, bench.state);
    auto numbers = ReadFlatJson(kFolder + name + ".json");
    const auto number = [&](const char* member) { return std::stoi(numbers[member].at(0)); };
    EXPECT_EQ(bench.layer.edgeDistanceSquared, number("edgeDistanceSquared")) << name;
    EXPECT_EQ(bench.layer.edgeBlurRadius, number("edgeBlurRadius")) << name;
    if (distance + softness > 0) {
      EXPECT_EQ(bench.layer.maxDistanceSquared, number("maxDistanceSquared")) << name;
    }
    const Pnm wanted = ReadPnm(kFolder + name + ".pgm");
    EXPECT_EQ(FirstDifference(InteriorOf(*bench.layer.edgeMap), wanted), "") << name;
    const Bytes model =
        EdgeByDefinition(bench.plane.samples, wanted.width, wanted.height, distance, softness);
    EXPECT_EQ(model, wanted.samples) << name << ": the tests' own model";
  }
}

TEST(Recorded, DistanceField) {
  EdgeBench bench;
  PageBuffer<std::int32_t> field;
  std::int32_t largest = 0;
  ASSERT_TRUE(BuildDistanceField(*bench.layer.selectionMap, field, largest));
  const std::string words = ReadText(kFolder + "distance-field.i32");
  ASSERT_EQ(words.size(), field.Size() * 4);
  std::int32_t deepest = 0;
  for (std::size_t i = 0; i < field.Size(); ++i) {
    std::uint32_t word = 0;
    for (std::size_t k = 4; k-- > 0;) {
      word = word << 8 | static_cast<std::uint8_t>(words[4 * i + k]);
    }
    ASSERT_EQ(field.Data()[i], static_cast<std::int32_t>(word)) << i;
    deepest = std::max(deepest, field.Data()[i]);
  }
  EXPECT_EQ(largest, deepest);
}

// Tells the first stage of a recorded picture that differs.
TEST(Recorded, StagesOfARender) {
  for (const std::string& name : GoldenCases("render")) {
    const std::string folder = GoldenFolder() + "render/" + name;
    if (!FileExists(folder + "/stages/source.pnm")) continue;
    GoldenCase golden(folder);
    Pnm out;
    SteppedRender render(golden.Job(out), AllForms().front());
    render.Run(golden.settings, golden.session);
    EffectLayer& wash = render.layers.washes[0];
    const int width = wash.working->Width();
    const int height = wash.working->Height();
    const auto expect = [&](const char* stage, const Pnm& got) {
      const std::string path = folder + "/stages/" + stage + ".pnm";
      if (!FileExists(path)) return;
      EXPECT_EQ(FirstDifference(got, ReadPnm(path)), "") << name << ' ' << stage;
    };
    const auto pixels = [&](const char* stage) {
      return Pnm{golden.input.width, golden.input.height, 4, render.after[stage]};
    };
    expect("wash1-working", InteriorOf(*wash.working));
    expect("wash1-coverage", MapOf(wash.activeCoverage, wash.flatCoverage, width, height));
    ASSERT_TRUE(EnsureNoise(wash, render.state));
    expect("wash1-noise", InteriorOf(*wash.noiseMap));
    expect("wash1-edge",
           MapOf(wash.edgeMap, wash.edgeWhole ? 255 : -1, golden.input.width, golden.input.height));
    expect("surface1-working", InteriorOf(*render.layers.surfaces[0].working));
    expect("surface-result", pixels("surface-result"));
    expect("after-surface", pixels("surface"));
    expect("after-wash1", pixels("wash1"));
    expect("after-wash2", pixels("wash2"));
    expect("after-background", pixels("background"));
  }
}

}  // namespace
}  // namespace tarnwick::testing
