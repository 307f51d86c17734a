// After any way to a view it looks as if the dialog had opened there.
#include <gtest/gtest.h>

#include <functional>

#include "dialog/preview/preview_stage.h"
#include "engine/coverage.h"
#include "engine/layer_edit.h"
#include "engine/wash_edge.h"
#include "host/counted_pages.h"
#include "support/test_random.h"

namespace tarnwick {
namespace {

using testhost::Document;
using testing::FirstDifference;
using testing::NoisyDocument;
using testing::PreviewStage;
using testing::TestRandom;

struct Step {
  const char* name;
  std::function<void(PreviewStage&, TestRandom&)> take;
};

PaneSize AnyPane(TestRandom& random) {
  return {20 + random.Below(60), 16 + random.Below(40)};
}

void SetBackgroundTones(PreviewStage& stage, TestRandom& random) {
  EffectSettings& s = stage.settings;
  s.BackgroundMidtoneColor = random.Next() & 0xFFFFFF;
  s.BackgroundHue = random.Below(201) - 100;
  s.BackgroundEnhancedMode = random.Coin() ? 1 : 0;
  SetTones(stage.g.layers.background,
           {100, 100, 100, ColorOfWord(s.BackgroundHighlightColor),
            ColorOfWord(s.BackgroundMidtoneColor), ColorOfWord(s.BackgroundShadowColor)});
}

// What the controls of the pages do, to the record and to the layer.
const Step kControls[] = {
    {"wash intensity",
     [](PreviewStage& stage, TestRandom& random) {
       stage.settings.WashIntensity1 = 1 + random.Below(200);
       SetIntensity(stage.g.layers.washes[0], stage.settings.WashIntensity1);
     }},
    {"wash coverage",
     [](PreviewStage& stage, TestRandom& random) {
       // Without the very end, where a full map stands for an empty one at times.
       stage.settings.WashCoverage1 = random.Below(200) - 100;
       SetCoverage(stage.g.layers.washes[0], stage.g.render, stage.settings.WashCoverage1);
     }},
    {"wash seed",
     [](PreviewStage& stage, TestRandom& random) {
       stage.settings.WashRandomize1 = random.Below(1000);
       SetSeed(stage.g.layers.washes[0], stage.settings.WashRandomize1);
     }},
    {"coverage scale",
     [](PreviewStage& stage, TestRandom& random) {
       stage.settings.WashCoverageScale1 = random.Below(201);
       SetCoverageScale(stage.g.layers.washes[0], stage.settings.WashCoverageScale1);
     }},
    {"edge",
     [](PreviewStage& stage, TestRandom& random) {
       EffectLayer& wash = stage.g.layers.washes[0];
       stage.settings.WashEdgeDistance1 = random.Below(101);
       stage.settings.WashEdgeSoftness1 = random.Below(201);
       SetEdgeSoftness(wash, stage.settings.WashEdgeSoftness1);
       SetEdgeDistance(wash, stage.settings.WashEdgeDistance1);
     }},
    {"wash inside",
     [](PreviewStage& stage, TestRandom&) {
       stage.settings.WashInside1 ^= 1;
       SetInside(stage.g.layers.washes[0], stage.settings.WashInside1);
     }},
    {"wash type",
     [](PreviewStage& stage, TestRandom& random) {
       EffectLayer& wash = stage.g.layers.washes[0];
       wash.washType = stage.settings.WashType1 = static_cast<std::uint8_t>(random.Below(4));
       stage.settings.WashStainColor1 = random.Next() & 0xFFFFFF;
       wash.stainColor = ColorOfWord(stage.settings.WashStainColor1);
     }},
    {"wash scale",
     [](PreviewStage& stage, TestRandom& random) {
       EffectLayer& wash = stage.g.layers.washes[0];
       EffectSettings& s = stage.settings;
       s.WashScale1 = random.Below(201);
       SetScale(wash, stage.g.render, s.WashScale1);
       s.WashOffsetX1 = wash.offsetX;
       s.WashOffsetY1 = wash.offsetY;
       // Its noise keeps the old scale until the window moves; a fresh one does not.
       wash.coverageDirty = true;
     }},
    {"surface scale",
     [](PreviewStage& stage, TestRandom& random) {
       EffectLayer& surface = stage.g.layers.surfaces[0];
       EffectSettings& s = stage.settings;
       s.SurfaceScale1 = random.Below(201);
       SetScale(surface, stage.g.render, s.SurfaceScale1);
       s.SurfaceOffsetX1 = surface.offsetX;
       s.SurfaceOffsetY1 = surface.offsetY;
     }},
    {"surface light",
     [](PreviewStage& stage, TestRandom& random) {
       stage.settings.SurfaceDepth1 = random.Below(101);
       stage.settings.SurfaceBrightness = random.Below(201);
       stage.settings.SurfaceLightAlpha = static_cast<float>(random.Below(361));
       stage.settings.SurfacePerspectiveOn ^= 1;
       stage.preview->SurfaceChanged();
     }},
    {"surface invert",
     [](PreviewStage& stage, TestRandom&) {
       stage.settings.SurfaceInvert1 ^= 1;
       ToggleInvert(stage.g.layers.surfaces[0], stage.g.render);
     }},
    {"wash flip",
     [](PreviewStage& stage, TestRandom&) {
       stage.settings.WashFlipVer1 ^= 1;
       ToggleFlipVertical(stage.g.layers.washes[0], stage.g.render);
     }},
    {"background turn",
     [](PreviewStage& stage, TestRandom&) {
       RotateLayerClockwise(stage.g.layers.background, stage.g.render);
       stage.settings.BackgroundAngle = stage.g.layers.background.angle;
     }},
    {"background tones", SetBackgroundTones},
    {"second wash",
     [](PreviewStage& stage, TestRandom&) {
       stage.settings.SecondWashExists ^= 1;
       if (stage.settings.SecondWashExists != 0) {
         stage.preview->MakeSecondWash();
       } else {
         stage.preview->DropSecondWash();
       }
     }},
    {"second surface",
     [](PreviewStage& stage, TestRandom&) {
       stage.settings.SecondSurfaceExists ^= 1;
       if (stage.settings.SecondSurfaceExists != 0) {
         stage.preview->MakeSecondSurface();
       } else {
         stage.preview->DropSecondSurface();
       }
     }},
    {"all layers", [](PreviewStage& stage, TestRandom&) { stage.preview->RemakeLayers(); }},
};

// One step: the window, a drag of a texture, or a control. Tells its name.
const char* TakeStep(PreviewStage& stage, TestRandom& random, PaneSize& pane) {
  LivePreview& preview = *stage.preview;
  const auto travel = [&] { return random.Below(61) - 30; };
  switch (random.Below(12)) {
    case 0:
      return preview.ZoomIn(pane), "in";
    case 1:
      return preview.ZoomOut(pane), "out";
    case 2:
      return preview.ZoomToFit(pane), "fit";
    case 3:
      return preview.ZoomToFull(pane), "full";
    case 4:
      pane = AnyPane(random);
      if (preview.FitProxyToPane(pane)) (void)preview.Resized(pane);
      return "pane";
    case 5:
    case 6:
      return preview.Pan(travel(), travel()), "pan";
    case 7:
      (void)preview.MoveActiveOffset(random.Coin() ? EffectPage::kWash : EffectPage::kSurface,
                                     ViewMode::kComposite, travel(), travel());
      return "drag";
    default: {
      const Step& step =
          kControls[static_cast<std::size_t>(random.Below(static_cast<int>(std::size(kControls))))];
      step.take(stage, random);
      return step.name;
    }
  }
}

// Every effect at work, with textures of odd shapes.
void UseEverything(EffectSettings& s) {
  const auto name = [](char(&to)[kTextureNameSize], const char* texture) {
    std::snprintf(to, sizeof to, "%s.twk", texture);
  };
  name(s.WashFileName1, "General_Store");
  name(s.WashFileName2, "Scratched");
  name(s.SurfaceFileName1, "Battleship");
  name(s.SurfaceFileName2, "Fiberglass");
  name(s.BackgroundFileName, "Rusted");
  s.SurfaceEntire = s.SurfaceIncludeWashArea = 1;
}

void Walk(const std::string& name, Document document, std::uint32_t seed, int steps) {
  PreviewStage stage(std::move(document));
  UseEverything(stage.settings);
  TestRandom random(seed);
  PaneSize pane = AnyPane(random);
  stage.Open(pane);
  std::string way;
  for (int i = 0; i < steps; ++i) {
    way += std::string(i == 0 ? "" : ", ") + TakeStep(stage, random, pane);
    const auto view = static_cast<ViewMode>(random.Below(3) == 0 ? random.Below(7) : 0);
    ASSERT_EQ(FirstDifference(stage.Shown(view, pane), stage.Fresh(view, pane)), "")
        << name << " view " << static_cast<int>(view) << " after " << way;
  }
}

TEST(LivePreviewWalk, ThreePlanes) {
  Walk("three planes", NoisyDocument(132, 96, 3), 1, 200);
}

TEST(LivePreviewWalk, Transparency) {
  Walk("four planes", NoisyDocument(132, 96, 4), 2, 200);
}

TEST(LivePreviewWalk, ASoftSelection) {
  Document document = NoisyDocument(132, 96, 3);
  testing::SelectSoftly(document);
  Walk("selection", document, 3, 200);
  document = NoisyDocument(132, 96, 4);
  testing::SelectSoftly(document);
  Walk("selection and transparency", document, 4, 100);
}

// The filter's rectangle starts within the document, between a scale's pixels too.
TEST(LivePreviewWalk, ASelectionsRectangle) {
  Document document = NoisyDocument(160, 120, 4);
  testing::SelectSoftly(document);
  document.filterRect = {13, 23, 108, 156};
  Walk("rectangle", document, 5, 100);
}

TEST(LivePreviewWalk, TwoThousandRefreshesHoldNoMorePagesThanTen) {
  PreviewStage stage(NoisyDocument(96, 72, 4));
  UseEverything(stage.settings);
  constexpr PaneSize kPane = {40, 30};
  stage.Open(kPane);
  std::size_t held = 0;
  for (int i = 0; i < 2000; ++i) {
    stage.settings.SurfaceBrightness = i % 200;
    stage.preview->SurfaceChanged();
    if (i % 10 == 0) (i % 20 == 0 ? stage.preview->ZoomOut(kPane) : stage.preview->ZoomIn(kPane));
    stage.preview->Render(ViewMode::kComposite);
    ASSERT_FALSE(stage.preview->BuildPaneImage(kPane).bitmap.empty());
    if (i == 39) held = testhost::LivePages().size();
  }
  EXPECT_EQ(testhost::LivePages().size(), held);
}

}  // namespace
}  // namespace tarnwick
