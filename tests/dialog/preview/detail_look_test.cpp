// A look at another texture shows what a dialog that opens with it would show, and leaves
// everything as it was.
#include "dialog/edits/detail_look.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <vector>

#include "dialog/edits/active_effect.h"
#include "dialog/preview/preview_stage.h"
#include "engine/texture_offset.h"

namespace tarnwick {
namespace {

using testing::FirstDifference;
using testing::NoisyDocument;
using testing::Pnm;
using testing::PreviewStage;

constexpr PaneSize kPane = {60, 44};

void Name(char (&to)[kTextureNameSize], const char* texture) {
  std::snprintf(to, sizeof to, "%s.twk", texture);
}

void NameAll(EffectSettings& s) {
  Name(s.WashFileName1, "General_Store");
  Name(s.WashFileName2, "Scratched");
  Name(s.SurfaceFileName1, "Battleship");
  Name(s.SurfaceFileName2, "Fiberglass");
  Name(s.BackgroundFileName, "Rusted");
  s.SecondWashExists = 1;
  s.WashInvert2 = 1;
}

// The middle of a pane, without its margin.
std::vector<std::uint8_t> Middle(const Pnm& pane, int width, int height) {
  std::vector<std::uint8_t> samples;
  const int left = (pane.width - width) / 2, top = (pane.height - height) / 2;
  for (int y = top; y < top + height; ++y) {
    for (int x = left * 3; x < (left + width) * 3; ++x) {
      samples.push_back(
          pane.samples[static_cast<std::size_t>(y) * static_cast<std::size_t>(pane.width) * 3 +
                       static_cast<std::size_t>(x)]);
    }
  }
  return samples;
}

TEST(DetailLook, ShowsItAndLeavesNoTrace) {
  struct Row {
    LayerKind kind;
    int tab;
    ViewMode view;
  };
  const Row rows[] = {{LayerKind::kWash, kWashTab, ViewMode::kComposite},
                      {LayerKind::kWash, kWashTab, ViewMode::kWashTwo},
                      {LayerKind::kSurface, kSurfaceTab, ViewMode::kComposite},
                      {LayerKind::kBackground, kBackgroundTab, ViewMode::kOriginal}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.tab);
    PreviewStage stage(NoisyDocument(132, 96, 4));
    NameAll(stage.settings);
    EffectViews views;
    views.currentTab = static_cast<std::uint8_t>(row.tab);
    views.Current() = row.view;
    stage.Open(kPane);
    // At the end of its way: another texture may not reach as far.
    LayerSlot slot = ActiveSlotOf(row.kind, views, stage.g.layers, stage.settings);
    MoveOffset(*slot.layer, stage.g.render, 1000, 1000);
    const std::int32_t offsetX = slot.layer->offsetX, offsetY = slot.layer->offsetY;
    const Pnm before = stage.Shown(row.view, kPane);
    const std::vector<std::uint8_t> pane = stage.preview->BuildPaneImage(kPane).bitmap;
    EffectSettings settings;
    std::memcpy(static_cast<void*>(&settings), &stage.settings, sizeof settings);
    const std::uint8_t invert = slot.layer->invert;
    stage.result = 77;

    for (const char* const name : {"Marble.twk", "Solid.twk", "No_Texture.twk"}) {
      const ThumbnailPicture look =
          LookAtTexture(stage.g, *stage.preview, views, row.kind, name, {30, 20});
      ASSERT_EQ(look.width, 30);
      ASSERT_EQ(look.height, 20);
      EXPECT_EQ(std::memcmp(&settings, &stage.settings, sizeof settings), 0) << name;
      EXPECT_EQ(stage.result, 77);
      EXPECT_EQ(slot.layer->offsetX, offsetX) << name;
      EXPECT_EQ(slot.layer->offsetY, offsetY) << name;
      EXPECT_EQ(slot.layer->invert, invert) << name;
    }
    // What stands in the preview, and what another render makes.
    EXPECT_EQ(stage.preview->BuildPaneImage(kPane).bitmap, pane);
    EXPECT_EQ(FirstDifference(stage.Shown(row.view, kPane), before), "");
  }
}

// As it is without a change of offset, so that an own render says the same.
TEST(DetailLook, IsTheMiddleOfThePane) {
  for (const int tab : {kWashTab, kSurfaceTab, kBackgroundTab}) {
    SCOPED_TRACE(tab);
    const LayerKind kind = tab == kWashTab      ? LayerKind::kWash
                           : tab == kSurfaceTab ? LayerKind::kSurface
                                                : LayerKind::kBackground;
    EffectViews views;
    views.currentTab = static_cast<std::uint8_t>(tab);
    PreviewStage stage(NoisyDocument(132, 96, 4));
    NameAll(stage.settings);
    stage.Open(kPane);
    (void)stage.Shown(ViewMode::kComposite, kPane);
    const ThumbnailPicture look =
        LookAtTexture(stage.g, *stage.preview, views, kind, "Marble.twk", {30, 20});

    PreviewStage other(NoisyDocument(132, 96, 4));
    NameAll(other.settings);
    std::snprintf(ActiveSlotOf(kind, views, other.g.layers, other.settings).fileName,
                  kTextureNameSize, "Marble.twk");
    other.Open(kPane);
    EXPECT_EQ(look.samples, Middle(other.Fresh(ViewMode::kComposite, kPane), 30, 20));
    // No larger than what there is.
    EXPECT_EQ(LookAtTexture(stage.g, *stage.preview, views, kind, "Marble.twk", {900, 900}).width,
              kPane.width);
  }
}

}  // namespace
}  // namespace tarnwick
