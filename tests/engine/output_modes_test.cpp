// What a run of several passes asks of the engine: the surface alone or left
// out, a wash held back, and the wash written to a layer mask.
#include <gtest/gtest.h>

#include <cstdio>

#include "engine/golden_cases.h"
#include "engine/intensity_table.h"
#include "engine/reference_masks.h"
#include "engine/shade_model.h"
#include "engine/stepped_render.h"
#include "engine/surface_light.h"
#include "engine/wash_render.h"
#include "support/images.h"

namespace tarnwick::testing {
namespace {

constexpr int kWidth = 31;
constexpr int kHeight = 22;

struct Bench {
  explicit Bench(bool selected, int planesOfPicture = 4) : planes(planesOfPicture) {
    TestRandom random(16);
    in = random.Shaped(static_cast<std::size_t>(kWidth * kHeight * planes));
    out = in;
    if (selected) selection = random.Shaped(kWidth * kHeight);
    SettingsSession session;
    ResetAllSettings(settings, session);
    std::snprintf(settings.WashFileName1, kTextureNameSize, "Rusted.twk");
    std::snprintf(settings.SurfaceFileName1, kTextureNameSize, "Solid.twk");
    settings.SurfaceEntire = 1;
    settings.WashCoverage1 = 40;
  }
  [[nodiscard]] PictureJob Job() {
    PictureJob job;
    job.width = kWidth;
    job.height = kHeight;
    job.planes = planes;
    job.in = in.data();
    job.out = out.data();
    job.inRowBytes = job.outRowBytes = kWidth * planes;
    job.selection = selection.empty() ? nullptr : selection.data();
    job.selectionRowBytes = kWidth;
    job.textureFolder = GoldenFolder() + "textures";
    return job;
  }
  int planes;
  Bytes in;
  Bytes out;
  Bytes selection;
  EffectSettings settings;
};

// A flat surface has one light, so one pure shade P; T is its brightest channel.
TEST(OutputModes, SurfaceAloneOrLeftOut) {
  for (const bool fillWash : {false, true}) {
    for (const bool entire : {false, true}) {
      for (const auto mode : {LayerOutputMode::kSurfaceAlone, LayerOutputMode::kSurfaceLeftOut}) {
        Bench b(false);
        b.settings.SurfaceEntire = entire ? 1 : 0;
        b.settings.SurfaceIncludeWashArea = fillWash ? 1 : 0;
        SteppedRender run(b.Job(), AllForms().back());
        run.state.layerOutputMode = mode;
        run.Run(b.settings, SettingsSession{});
        const bool keepSave = entire && fillWash;
        EXPECT_EQ(run.state.keepSurfaceSave, keepSave);
        const std::array<int, 3> p =
            ShadeByDefinition(b.settings, 0, {}, LightOf(b.settings, 1).z).pure;
        const int top = std::max({p[0], p[1], p[2]});
        const bool alone = mode == LayerOutputMode::kSurfaceAlone;
        const char* const stage = "surface-result";
        for (std::size_t i = 0; i < b.in.size(); i += 4) {
          const std::uint8_t* const got = &run.after[stage][i];
          const int alpha = b.in[i + 3];
          for (std::size_t c = 0; c < 3; ++c) ASSERT_EQ(got[c], alone ? p[c] : b.in[i + c]);
          const int filled = keepSave ? top : std::max(alpha, top);
          ASSERT_EQ(got[3], alone && entire ? filled : alpha);
          if (!keepSave) continue;
          const std::uint8_t* const save = run.state.surfaceSave.Data() + i;
          for (std::size_t c = 0; c < 3; ++c) ASSERT_EQ(save[c], alone ? p[c] : 0);
          ASSERT_EQ(save[3], alone ? top : 0);
        }
        // With the wash area in the surface nothing follows it; else the wash
        // still runs, but the background does not.
        EXPECT_EQ(run.after.count("wash1") == 0, alone && keepSave);
        EXPECT_EQ(run.after.count("background") == 0, alone);
      }
    }
  }
}

const struct {
  const char* name;
  int planes;
  bool selected, fillWash;
  int inside, distance, intensity;
} kMasks[] = {
    {"the edge plays no part without a distance", 5, false, false, 0, 0, 100},
    {"inside", 5, false, false, 1, 30, 100},
    {"outside", 5, false, false, 0, 30, 60},
    {"a selection, and the table also above 100", 6, true, false, 1, 0, 170},
    {"pure surface where the wash eats", 5, false, true, 1, 0, 100},
    {"the same with a selection", 6, true, true, 1, 20, 200},
};

TEST(OutputModes, WashToAMask) {
  for (const auto& c : kMasks) {
    Bench b(c.selected, c.planes);
    b.settings.SurfaceIncludeWashArea = c.fillWash ? 1 : 0;
    b.settings.WashInside1 = static_cast<std::uint8_t>(c.inside);
    b.settings.WashEdgeDistance1 = c.distance;
    b.settings.WashIntensity1 = c.intensity;
    b.settings.WashScale1 = 100;
    SteppedRender run(b.Job(), AllForms().back());
    // Held back, its masks are built all the same.
    run.state.deferWash = true;
    run.Run(b.settings, SettingsSession{});
    ASSERT_EQ(run.state.keepSurfaceSave, c.fillWash);
    EffectLayer& wash = run.layers.washes[0];

    Bytes target = TestRandom(17).Shaped(b.in.size());
    Bytes wanted = target;
    const Pnm texture = InteriorOf(*wash.working);
    const Bytes coverage =
        CoverageByDefinition(texture.width, texture.height, b.settings.WashCoverage1,
                             b.settings.WashCoverageScale1, b.settings.WashRandomize1);
    Bytes plane;
    for (std::size_t i = 0; i < kWidth * kHeight; ++i) {
      const int alpha = b.in[i * static_cast<std::size_t>(c.planes) + 3];
      plane.push_back(static_cast<std::uint8_t>(c.selected ? b.selection[i] * alpha / 255 : alpha));
    }
    const Bytes edge = EdgeByDefinition(plane, kWidth, kHeight, c.distance, 0);
    for (int i = 0; i < kWidth * kHeight; ++i) {
      const auto pixel = static_cast<std::size_t>(i);
      const auto at = static_cast<std::size_t>(i / kWidth * texture.width + i % kWidth);
      const float m = static_cast<float>(coverage[at]) / 255;
      int e = 255;
      if (c.distance != 0) e = c.inside != 0 ? edge[pixel] : 255 - edge[pixel];
      float a = static_cast<float>(e) / 255 * m;
      if (c.selected) a = a * static_cast<float>(b.selection[pixel]) / 255;
      const float mixed = a * static_cast<float>(texture.samples[at]) + (1 - a) * 255;
      float v = wash.intensityTable[static_cast<std::uint8_t>(mixed)];
      std::uint8_t* const p = &wanted[pixel * static_cast<std::size_t>(c.planes)];
      if (c.fillWash) {
        const std::uint8_t* const save = run.state.surfaceSave.Data() + 4 * i;
        v = v * static_cast<float>(p[3]) / 255;
        const float f = v / 255;
        for (int k = 0; k < 3; ++k) {
          const float through =
              static_cast<float>(save[k]) * (1 - f) + static_cast<float>(p[k]) * f;
          p[k] = v == 0 ? save[k] : static_cast<std::uint8_t>(std::min(through, 255.0F));
        }
        p[3] = 255;
        v = std::max(v, static_cast<float>(save[3]));
      }
      std::uint8_t& mask = p[c.planes - 1];
      mask = static_cast<std::uint8_t>(std::min(static_cast<float>(mask), v));
    }
    const Bytes before = target;
    MaskTarget place{target.data(), kWidth * c.planes, kWidth, kHeight, 4};
    RenderWashToMask(wash, run.state, place);
    EXPECT_EQ(target, before) << c.name << ": 4 planes have no mask";
    place.planes = c.planes;
    RenderWashToMask(wash, run.state, place);
    EXPECT_EQ(target, wanted) << c.name;
  }
}

}  // namespace
}  // namespace tarnwick::testing
