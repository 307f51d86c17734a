#include "engine/layer_edit.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>

#include "engine/coverage.h"
#include "engine/golden_cases.h"
#include "engine/render_pipeline.h"
#include "engine/stepped_render.h"
#include "engine/texture_offset.h"
#include "engine/wash_edge.h"
#include "support/images.h"
#include "support/temp_folder.h"
#include "support/wash_bytes.h"
#include "textures/texture_load.h"

namespace tarnwick::testing {
namespace {

// A wash in a preview of a 6 x 4 document, loaded and not stale.
struct Bench {
  explicit Bench(LayerKind kind = LayerKind::kWash) {
    state.previewMode = true;
    state.documentWidth = state.renderWidth = 6;
    state.documentHeight = state.renderHeight = 4;
    layer.kind = kind;
    path = folder.Put("a.twk", GrayWash(3, {1, 2, 3, 4, 5, 6}));
    EXPECT_TRUE(LoadTexture(layer, state, path));
    layer.coverageDirty = false;
    BuildSelectionMap(layer, state);
    layer.noiseMap = MakeGrayImage({0, 0, 4, 6}, 3);
    layer.edgeDirty = layer.toneDirty = state.surfaceStale = false;
  }
  [[nodiscard]] std::string Stale() const {
    return std::string(layer.textureDirty ? "texture " : "") +
           (layer.coverageDirty ? "coverage " : "") + (layer.edgeDirty ? "edge " : "") +
           (layer.toneDirty ? "tone " : "") + (state.surfaceStale ? "surface " : "");
  }
  TempFolder folder;
  std::string path;
  RenderState state;
  EffectLayer layer;
};

const struct {
  const char* name;
  void (*edit)(Bench& b);
  const char* stale;
  const char* staleOfSurface;  // the wash's own setters leave other kinds alone
} kEdits[] = {
    {"intensity", [](Bench& b) { SetIntensity(b.layer, 60); }, "texture ", "texture "},
    {"inside", [](Bench& b) { SetInside(b.layer, 0); }, "", ""},
    {"tones", [](Bench& b) { SetTones(b.layer, {}); }, "tone ", "tone "},
    {"offset", [](Bench& b) { MoveOffset(b.layer, b.state, 0, 0); }, "texture ", "texture "},
    {"same scale", [](Bench& b) { SetScale(b.layer, b.state, 0); }, "", ""},
    {"scale that alters nothing", [](Bench& b) { SetScale(b.layer, b.state, 1e-20); }, "", ""},
    {"scale", [](Bench& b) { SetScale(b.layer, b.state, 200); }, "tone surface ", "tone surface "},
    {"turn", [](Bench& b) { RotateLayerClockwise(b.layer, b.state); }, "tone surface ",
     "tone surface "},
    {"invert", [](Bench& b) { ToggleInvert(b.layer, b.state); }, "tone surface ", "tone surface "},
    {"coverage scale", [](Bench& b) { SetCoverageScale(b.layer, 50); }, "coverage ", ""},
    {"seed", [](Bench& b) { SetSeed(b.layer, 124); }, "coverage ", ""},
    {"same seed", [](Bench& b) { SetSeed(b.layer, 123); }, "", ""},
    {"same coverage", [](Bench& b) { SetCoverage(b.layer, b.state, 0); }, "", ""},
    {"edge distance", [](Bench& b) { SetEdgeDistance(b.layer, 10); }, "edge ", ""},
    {"edge softness", [](Bench& b) { SetEdgeSoftness(b.layer, 10); }, "edge ", ""},
};

TEST(LayerEdit, MarksWhatBecomesStale) {
  for (const auto& c : kEdits) {
    Bench wash;
    c.edit(wash);
    EXPECT_EQ(wash.Stale(), c.stale) << c.name;
    Bench surface(LayerKind::kSurface);
    surface.layer.coverageDirty = surface.layer.edgeDirty = false;
    c.edit(surface);
    EXPECT_EQ(surface.Stale(), c.staleOfSurface) << c.name;
  }
  EffectLayers layers;
  layers.washes[1].coverageDirty = layers.surfaces[1].textureDirty = false;
  layers.background.textureDirty = layers.washes[1].textureDirty = false;
  MarkCoverageDirty(layers);
  MarkTexturesDirty(layers);
  EXPECT_TRUE(layers.washes[1].coverageDirty && layers.washes[1].textureDirty);
  EXPECT_TRUE(layers.surfaces[1].textureDirty && layers.background.textureDirty);
}

TEST(LayerEdit, StoresAndDerives) {
  Bench b;
  SetCoverageScale(b.layer, 50);
  EXPECT_EQ(b.layer.noisePeriod, 64);  // 1.28 x 50
  SetEdgeSoftness(b.layer, 300);
  EXPECT_EQ(b.layer.edgeSoftness, 200);
  // 6 x 4 white is 2 deep at its middle: trunc((2 + 1) * 200 / 200) / 2 = 1.
  EXPECT_EQ(b.layer.edgeBlurRadius, 1);
  SetEdgeSoftness(b.layer, -7);
  EXPECT_EQ(b.layer.edgeSoftness, 0);
  SetEdgeDistance(b.layer, 100);
  EXPECT_EQ(b.layer.edgeDistanceSquared, 9);
  EffectLayer bare;
  SetEdgeSoftness(bare, 300);
  EXPECT_EQ(bare.edgeBlurRadius, 200);
  SetSeed(bare, 123);
  EXPECT_TRUE(bare.coverageDirty) << "the same seed, but no noise yet";

  // Without its file a layer keeps its texture until a scale asks for it.
  std::filesystem::remove(b.path);
  const ImagePtr before = b.layer.texture;
  SetScale(b.layer, b.state, 0);
  EXPECT_EQ(b.layer.texture, before);
  SetScale(b.layer, b.state, 1e-20);
  EXPECT_EQ(b.layer.texture, before);
  EXPECT_EQ(b.layer.scaleSetting, 1e-20);
  SetScale(b.layer, b.state, 100);
  EXPECT_EQ(b.layer.textureWidth, 1000);
}

TEST(LayerEdit, TurnsAndTogglesInAPreview) {
  Bench b;
  const Bytes upright = StorageOf(*b.layer.texture);
  RotateLayerCounterClockwise(b.layer, b.state);
  EXPECT_EQ(b.layer.angle, 270);
  EXPECT_EQ(b.layer.texture->Width(), 4);
  EXPECT_EQ(b.layer.working->Width(), 4);
  for (const int angle : {0, 90, 180, 270, 0}) {
    RotateLayerClockwise(b.layer, b.state);
    EXPECT_EQ(b.layer.angle, angle);
  }
  EXPECT_EQ(StorageOf(*b.layer.texture), upright);
  for (const auto toggle : {ToggleFlipHorizontal, ToggleFlipVertical, ToggleInvert}) {
    toggle(b.layer, b.state);
    EXPECT_NE(StorageOf(*b.layer.working), upright);
    EXPECT_EQ(StorageOf(*b.layer.working), StorageOf(*b.layer.texture));
    toggle(b.layer, b.state);
    EXPECT_EQ(StorageOf(*b.layer.working), upright);
  }
  EXPECT_EQ(b.layer.flipHorizontal + b.layer.flipVertical + b.layer.invert, 0);
}

TEST(Coverage, AFullMapAndAnEmptyOneAt100) {
  for (const bool preview : {false, true}) {
    Bench b;
    b.state.previewMode = preview;
    b.layer.noiseMap = nullptr;
    b.layer.coverageDirty = true;
    b.layer.coverage = 100;
    const auto seen = [&] {
      const Pnm map = MapOf(b.layer.activeCoverage, b.layer.flatCoverage, 6, 4);
      return std::pair{*std::min_element(map.samples.begin(), map.samples.end()),
                       *std::max_element(map.samples.begin(), map.samples.end())};
    };
    BuildCoverage(b.layer, b.state);
    EXPECT_LT(seen().second, 100) << "only noise of 0 is covered";
    b.layer.coverageDirty = true;
    BuildCoverage(b.layer, b.state);
    EXPECT_EQ(seen(), std::pair(std::uint8_t{255}, std::uint8_t{255})) << "the noise is there";
    SetCoverage(b.layer, b.state, 0);
    EXPECT_EQ(seen(), std::pair(std::uint8_t{255}, std::uint8_t{255}));
    SetCoverage(b.layer, b.state, 100);
    EXPECT_LT(seen().second, 100);
    EXPECT_EQ(b.layer.coverage, 100);
    EXPECT_FALSE(b.layer.coverageDirty);
  }
}

// An edit of a live preview shows what a fresh preview with that setting shows.
const struct {
  const char* name;
  void (*edit)(EffectLayer& wash, RenderState& state);
  void (*set)(EffectSettings& s);
} kLiveEdits[] = {
    {"intensity", [](EffectLayer& w, RenderState&) { SetIntensity(w, 150); },
     [](EffectSettings& s) { s.WashIntensity1 = 150; }},
    {"inside", [](EffectLayer& w, RenderState&) { SetInside(w, 0); },
     [](EffectSettings& s) { s.WashInside1 = 0; }},
    {"coverage", [](EffectLayer& w, RenderState& r) { SetCoverage(w, r, 40); },
     [](EffectSettings& s) { s.WashCoverage1 = 40; }},
    {"no coverage", [](EffectLayer& w, RenderState& r) { SetCoverage(w, r, 0); },
     [](EffectSettings& s) { s.WashCoverage1 = 0; }},
    {"soft coverage", [](EffectLayer& w, RenderState& r) { SetCoverage(w, r, -70); },
     [](EffectSettings& s) { s.WashCoverage1 = -70; }},
    {"seed", [](EffectLayer& w, RenderState&) { SetSeed(w, 77); },
     [](EffectSettings& s) { s.WashRandomize1 = 77; }},
    {"coverage scale", [](EffectLayer& w, RenderState&) { SetCoverageScale(w, 20); },
     [](EffectSettings& s) { s.WashCoverageScale1 = 20; }},
    {"edge distance", [](EffectLayer& w, RenderState&) { SetEdgeDistance(w, 60); },
     [](EffectSettings& s) { s.WashEdgeDistance1 = 60; }},
    {"no edge distance", [](EffectLayer& w, RenderState&) { SetEdgeDistance(w, 0); },
     [](EffectSettings& s) { s.WashEdgeDistance1 = 0; }},
    {"edge softness", [](EffectLayer& w, RenderState&) { SetEdgeSoftness(w, 90); },
     [](EffectSettings& s) { s.WashEdgeSoftness1 = 90; }},
    // The noise spans the texture, but only whoever moves the window tells it.
    {"scale",
     [](EffectLayer& w, RenderState& r) {
       SetScale(w, r, 180);
       w.coverageDirty = true;
     },
     [](EffectSettings& s) { s.WashScale1 = 180; }},
    {"invert", [](EffectLayer& w, RenderState& r) { ToggleInvert(w, r); },
     [](EffectSettings& s) { s.WashInvert1 = 1; }},
    {"flip", [](EffectLayer& w, RenderState& r) { ToggleFlipVertical(w, r); },
     [](EffectSettings& s) { s.WashFlipVer1 = 1; }},
    {"turn", [](EffectLayer& w, RenderState& r) { RotateLayerClockwise(w, r); },
     [](EffectSettings& s) { s.WashAngle1 = 90; }},
    {"offset", [](EffectLayer& w, RenderState& r) { MoveOffset(w, r, 4, 3); },
     [](EffectSettings& s) {
       s.WashOffsetX1 = 4;
       s.WashOffsetY1 = 3;
     }},
};

TEST(LayerEdit, ALivePreviewShowsWhatAFreshOneDoes) {
  const GoldenCase golden(GoldenFolder() + "render/01-defaults");
  EffectSettings base = golden.settings;
  std::snprintf(base.WashFileName1, sizeof base.WashFileName1, "Rusted.twk");
  base.WashCoverage1 = 60;
  base.WashEdgeDistance1 = 10;
  base.WashType1 = 1;
  base.WashScale1 = 100;
  PreviewWindow window = WholeWindow(golden.input.width, golden.input.height, 2);
  const auto pixels = [](const SteppedRender& render) {
    return Bytes(render.state.outputPixels.Data(),
                 render.state.outputPixels.Data() + render.state.outputPixels.Size());
  };
  Pnm out;
  const PictureJob job = golden.Job(out);
  EffectSettings settings = base;
  SteppedRender plain(job, AllForms().back(), &window);
  plain.Run(settings, golden.session);
  for (const auto& c : kLiveEdits) {
    settings = base;
    SteppedRender live(job, AllForms().back(), &window);
    live.Run(settings, golden.session);
    c.edit(live.layers.washes[0], live.state);
    RenderPipeline(live.layers, live.state, settings, window.view);
    c.set(settings);
    SteppedRender fresh(job, AllForms().back(), &window);
    fresh.Run(settings, golden.session);
    EXPECT_EQ(pixels(live), pixels(fresh)) << c.name;
    EXPECT_NE(pixels(live), pixels(plain)) << c.name << " changes nothing";
  }
}

}  // namespace
}  // namespace tarnwick::testing
