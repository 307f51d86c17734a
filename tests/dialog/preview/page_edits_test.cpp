// The pages' edits: each leaves the preview as a dialog that opens with the settings
// would show it.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>

#include "dialog/edits/setting_edits.h"
#include "dialog/preview/preview_stage.h"
#include "engine/layer_edit.h"
#include "support/test_random.h"

namespace tarnwick {
namespace {

using testing::FirstDifference;
using testing::NoisyDocument;
using testing::PreviewStage;
using testing::TestRandom;

constexpr PaneSize kPane = {60, 44};
constexpr int kEffectTabs[] = {kWashTab, kSurfaceTab, kBackgroundTab};

void Name(char (&to)[kTextureNameSize], const char* texture) {
  std::snprintf(to, sizeof to, "%s.twk", texture);
}

// The pages over a preview, without windows.
struct Pages {
  explicit Pages(int planes, int width = 132, int height = 96)
      : stage(NoisyDocument(width, height, planes)), edits(stage.g, views, nullptr) {}

  void Open() {
    stage.Open(kPane);
    edits_with_preview = std::make_unique<SettingEdits>(stage.g, views, stage.preview.get());
    stage.preview->SetLinkPropagation(
        [this](LayerKind kind) { PropagateLinks(Edits().Scope(), kind); });
  }
  SettingEdits& Edits() { return edits_with_preview ? *edits_with_preview : edits; }

  void UseEverything() {
    EffectSettings& s = stage.settings;
    Name(s.WashFileName1, "General_Store");
    Name(s.WashFileName2, "Scratched");
    Name(s.SurfaceFileName1, "Battleship");
    Name(s.SurfaceFileName2, "Fiberglass");
    Name(s.BackgroundFileName, "Rusted");
  }

  PreviewStage stage;
  EffectViews views;
  SettingEdits edits;
  std::unique_ptr<SettingEdits> edits_with_preview;
};

std::int32_t AnyValue(const ControlRow& row, TestRandom& random) {
  switch (row.kind) {
    case RowKind::kValue:
      return row.minimum + random.Below(row.maximum - row.minimum + 1);
    case RowKind::kChoice:
      return random.Below(static_cast<int>(row.choices.size()));
    case RowKind::kSwatch:
      return static_cast<std::int32_t>(random.Next() & 0xFFFFFF);
    case RowKind::kSeedField:
      return random.Below(1000);
    default:
      return random.Below(2);
  }
}

// One control of a page: by its slider, or by its up-down.
std::string TakeStep(Pages& pages, TestRandom& random) {
  const int tab = kEffectTabs[random.Below(3)];
  pages.views.currentTab = static_cast<std::uint8_t>(tab);
  pages.views.washView = random.Coin() ? ViewMode::kWashOne : ViewMode::kWashTwo;
  pages.views.surfaceView = random.Coin() ? ViewMode::kSurfaceOne : ViewMode::kSurfaceTwo;
  SettingEdits& edits = pages.Edits();
  const std::span<const ControlRow> rows = RowsOf(tab);
  const ControlRow& row =
      rows[static_cast<std::size_t>(random.Below(static_cast<int>(rows.size())))];
  const std::string name = std::to_string(tab) + "/" + std::to_string(row.id);
  const auto slot = ActiveSlot(tab, pages.views, pages.stage.g.layers, pages.stage.settings);
  // A turned texture is moved and mirrored as it lies, a loaded one before it is turned.
  const bool isLying = *slot->angle % 180 != 0;
  if (row.kind == RowKind::kOffset) {
    if (isLying) return "(" + name + ")";
    edits.MoveOffset(tab, random.Below(61) - 30, random.Below(61) - 30);
  } else if (row.kind == RowKind::kLight) {
    edits.SetLight(static_cast<float>(random.Below(361)), static_cast<float>(random.Below(91)));
  } else if (row.field.set != nullptr) {
    const bool isFlip =
        row.setter == LayerSetter::kMirror || row.setter == LayerSetter::kUpsideDown;
    if (isFlip && isLying) return "(" + name + ")";
    std::int32_t value = AnyValue(row, random);
    // With the very end a full map stands for an empty one at times.
    if (row.setter == LayerSetter::kCoverage && value == 100) value = 99;
    // The up-down of the patches takes the first wash's number for both.
    const bool isOdd = row.setter == LayerSetter::kCoverageScale &&
                       IsSecondActive(tab, pages.views, pages.stage.settings);
    if (row.kind == RowKind::kValue && !isOdd && random.Coin()) {
      edits.Store(tab, row, value);
      edits.FinishStored(tab, row);
    } else {
      edits.Set(tab, row, value);
    }
    EXPECT_TRUE(row.kind == RowKind::kTurn || edits.Value(tab, row) == value) << name;
    // Noise keeps the shape that its texture had until the window moves.
    if (row.setter == LayerSetter::kScale || row.kind == RowKind::kTurn) {
      MarkCoverageDirty(pages.stage.g.layers);
    }
  }
  return name;
}

void Walk(int planes, bool isLinked, std::uint32_t seed, int steps) {
  Pages pages(planes);
  pages.UseEverything();
  EffectSettings& s = pages.stage.settings;
  s.SecondWashExists = s.SecondSurfaceExists = 1;
  if (isLinked) {
    for (char(*name)[kTextureNameSize] : {&s.WashFileName1, &s.WashFileName2, &s.SurfaceFileName1,
                                          &s.SurfaceFileName2, &s.BackgroundFileName}) {
      Name(*name, "General_Store");
    }
  }
  pages.Open();
  if (isLinked) {
    const TextureMatches matches = pages.Edits().Update();
    AcceptLink(pages.Edits().Scope(), LayerKind::kSurface, LayerKind::kWash, matches);
    SettingsSession& session = pages.stage.g.session;
    ASSERT_EQ(session.WashLinked + session.SurfaceLinked + session.BackgroundLinked, 3);
  }
  TestRandom random(seed);
  std::string way;
  for (int i = 0; i < steps; ++i) {
    way += " " + TakeStep(pages, random);
    const auto view = static_cast<ViewMode>(random.Below(3) == 0 ? random.Below(6) : 0);
    ASSERT_EQ(FirstDifference(pages.stage.Shown(view, kPane), pages.stage.Fresh(view, kPane)), "")
        << "view " << static_cast<int>(view) << " after" << way;
    if (!isLinked) continue;
    // All of one texture: they lie on each other.
    EXPECT_EQ(s.WashScale1, s.BackgroundScale) << way;
    EXPECT_EQ(s.WashScale2, s.SurfaceScale2) << way;
    EXPECT_EQ(s.WashFlipVer1, s.SurfaceFlipVer1) << way;
    EXPECT_EQ(s.WashFlipHor2, s.BackgroundFlipHor) << way;
    EXPECT_EQ(s.WashAngle1, s.SurfaceAngle2) << way;
    EXPECT_EQ(s.WashOffsetX2, s.BackgroundOffsetX) << way;
    EXPECT_EQ(s.WashOffsetY1, s.SurfaceOffsetY1) << way;
  }
}

TEST(PageEdits, EveryControlShowsAtOnce) {
  Walk(3, false, 1, 160);
}

TEST(PageEdits, EveryControlShowsAtOnceOverTransparency) {
  Walk(4, false, 2, 160);
}

TEST(PageEdits, WhatIsLinkedFollows) {
  Walk(3, true, 3, 120);
}

// What a page shows, set once more, is no change.
TEST(PageEdits, ShownValuesAreTheSettings) {
  Pages pages(4, 40, 30);
  pages.UseEverything();
  EffectSettings& s = pages.stage.settings;
  s.SecondWashExists = s.SecondSurfaceExists = 1;
  pages.Open();
  TestRandom random(4);
  for (int i = 0; i < 200; ++i) {
    for (const int tab : kEffectTabs) {
      for (const ViewMode view : {ViewMode::kWashOne, ViewMode::kWashTwo}) {
        pages.views.washView = view;
        pages.views.surfaceView =
            view == ViewMode::kWashOne ? ViewMode::kSurfaceOne : ViewMode::kSurfaceTwo;
        const bool second = view == ViewMode::kWashTwo;
        for (const ControlRow& row : RowsOf(tab)) {
          if (row.field.set == nullptr || row.kind == RowKind::kTurn) continue;
          row.field.set(s, second && tab != kBackgroundTab, AnyValue(row, random));
        }
        EffectSettings before;
        std::memcpy(static_cast<void*>(&before), &s, sizeof s);
        for (const ControlRow& row : RowsOf(tab)) {
          if (row.field.set == nullptr || row.kind == RowKind::kTurn ||
              row.setter == LayerSetter::kScale) {
            continue;
          }
          pages.Edits().Set(tab, row, pages.Edits().Value(tab, row));
        }
        ASSERT_EQ(std::memcmp(&before, &s, sizeof s), 0) << tab;
      }
    }
  }
}

// Odd, and kept.
TEST(PageEdits, TheUpDownOfPatchesTakesTheFirstWashsNumber) {
  Pages pages(3);
  pages.UseEverything();
  EffectSettings& s = pages.stage.settings;
  s.SecondWashExists = 1;
  s.WashCoverageScale1 = 40;
  pages.Open();
  pages.views.washView = ViewMode::kWashTwo;
  for (const ControlRow& row : RowsOf(kWashTab)) {
    if (row.setter != LayerSetter::kCoverageScale) continue;
    pages.Edits().Store(kWashTab, row, 170);
    pages.Edits().FinishStored(kWashTab, row);
  }
  EXPECT_EQ(s.WashCoverageScale2, 170);
  EXPECT_EQ(s.WashCoverageScale1, 40);
  EXPECT_EQ(pages.stage.g.layers.washes[1].coverageScale, 40);
}

// Each way from one angle to another ends there, by quarter turns.
TEST(PageEdits, ALinkTurnsToTheSameAngle) {
  for (const int from : {0, 90, 180, 270}) {
    for (const int to : {0, 90, 180, 270}) {
      Pages pages(3);
      EffectSettings& s = pages.stage.settings;
      pages.UseEverything();
      Name(s.SurfaceFileName1, "General_Store");
      s.WashAngle1 = to;
      s.SurfaceAngle1 = from;
      // Mirrored as it lies, not as it would be loaded: only upright ones are compared.
      s.SurfaceFlipVer1 = from % 180 == 0 ? 1 : 0;
      s.WashScale1 = 80;
      s.WashOffsetX1 = 3;
      pages.Open();
      SettingsSession& session = pages.stage.g.session;
      session.WashLinked = 1;
      const LinkScope scope = pages.Edits().Scope();
      PropagateLinks(scope, LayerKind::kWash);
      EXPECT_EQ(s.SurfaceAngle1, from) << "not linked";
      session.SurfaceLinked = 1;
      PropagateLinks(scope, LayerKind::kWash);
      EXPECT_EQ(s.SurfaceAngle1, to);
      EXPECT_EQ(pages.stage.g.layers.surfaces[0].angle, to);
      EXPECT_EQ(s.SurfaceFlipVer1, 0);
      EXPECT_EQ(s.SurfaceScale1, 80);
      EXPECT_EQ(s.SurfaceOffsetX1, s.WashOffsetX1);
      EXPECT_EQ(s.SurfaceScale2, 0) << "no second surface";
      EXPECT_EQ(FirstDifference(pages.stage.Shown(ViewMode::kComposite, kPane),
                                pages.stage.Fresh(ViewMode::kComposite, kPane)),
                "")
          << from << " to " << to;
    }
  }
}

TEST(PageEdits, TheOfferStartsWithTheFirstMatch) {
  TextureMatches matches;
  EXPECT_EQ(PreselectedSource(LayerKind::kWash, matches), LayerKind::kWash);
  matches.washSurface = matches.washBackground = matches.surfaceBackground = true;
  EXPECT_EQ(PreselectedSource(LayerKind::kWash, matches), LayerKind::kSurface);
  EXPECT_EQ(PreselectedSource(LayerKind::kSurface, matches), LayerKind::kWash);
  EXPECT_EQ(PreselectedSource(LayerKind::kBackground, matches), LayerKind::kWash);
  matches.washBackground = matches.washSurface = false;
  EXPECT_EQ(PreselectedSource(LayerKind::kBackground, matches), LayerKind::kSurface);
  EXPECT_EQ(PreselectedSource(LayerKind::kSurface, matches), LayerKind::kBackground);
}

}  // namespace
}  // namespace tarnwick
