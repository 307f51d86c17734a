#include "dialog/models/color_target.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

// Colour words: red in the low byte.
struct Tones {
  std::uint32_t highlight, midtone, shadow;
  bool operator==(const Tones&) const = default;
};

constexpr Tones kSurfaceBefore = {0x00A0B0C0, 0x00708090, 0x00102030};
constexpr Tones kRecordBefore = {0x00111111, 0x00222222, 0x00333333};
constexpr Tones kLayerBefore = {0x00010203, 0x00040506, 0x00070809};
constexpr Tones kRust = {0x004080C0, 0x00204060, 0x00081018};
constexpr Tones kMoss = {0x0066AA55, 0x00337722, 0x00113311};

class ColorDrawer : public ::testing::Test {
 protected:
  ColorDrawer() {
    settings_.SurfaceHighlightColor = kSurfaceBefore.highlight;
    settings_.SurfaceMidtoneColor = kSurfaceBefore.midtone;
    settings_.SurfaceShadowColor = kSurfaceBefore.shadow;
    settings_.BackgroundHighlightColor = kRecordBefore.highlight;
    settings_.BackgroundMidtoneColor = kRecordBefore.midtone;
    settings_.BackgroundShadowColor = kRecordBefore.shadow;
    layers_.background.highlightColor = {3, 2, 1};
    layers_.background.midtoneColor = {6, 5, 4};
    layers_.background.shadowColor = {9, 8, 7};
    links_.SurfaceColorCategory = "Old Surface";
    links_.BackgroundColorCategory = "Old Background";
    Settle();
  }

  // A folder of two presets.
  bool Load(std::string_view name, PresetKind kind) {
    loaded_.emplace_back(std::string(name), kind);
    const std::map<std::string, Tones> files = {{"Rust", kRust}, {"Moss", kMoss}};
    const auto file = files.find(std::string(name));
    if (file == files.end()) return false;
    session_.PresetHighlightColor = file->second.highlight;
    session_.PresetMidtoneColor = file->second.midtone;
    session_.PresetShadowColor = file->second.shadow;
    return true;
  }
  // What a render leaves.
  void Settle() {
    render_.surfaceStale = false;
    layers_.background.toneDirty = false;
  }
  [[nodiscard]] Tones Surface() const {
    return {settings_.SurfaceHighlightColor, settings_.SurfaceMidtoneColor,
            settings_.SurfaceShadowColor};
  }
  [[nodiscard]] Tones Record() const {
    return {settings_.BackgroundHighlightColor, settings_.BackgroundMidtoneColor,
            settings_.BackgroundShadowColor};
  }
  [[nodiscard]] Tones Layer() const {
    const auto word = [](const LayerColor& c) {
      return static_cast<std::uint32_t>(c[2] * 65536 + c[1] * 256 + c[0]);
    };
    const EffectLayer& layer = layers_.background;
    return {word(layer.highlightColor), word(layer.midtoneColor), word(layer.shadowColor)};
  }

  EffectSettings settings_;
  SettingsSession links_;
  PresetSession session_{links_};
  EffectLayers layers_;
  RenderState render_;
  EffectViews views_;
  std::vector<std::pair<std::string, PresetKind>> loaded_;
  ColorTarget target_{settings_, session_, layers_, render_,
                      [this](std::string_view name, PresetKind kind) { return Load(name, kind); }};
};

TEST_F(ColorDrawer, SurfaceIsTriedInTheRecord) {
  EXPECT_EQ(target_.OpenForSurface(views_).target, ColorTargetKind::kSurface);
  ColorWork work = target_.Try("Rust");
  EXPECT_TRUE(work.settingsChanged && !work.showPage && !work.closeDrawer);
  EXPECT_EQ(Surface(), kRust);
  EXPECT_TRUE(render_.surfaceStale);
  EXPECT_EQ(loaded_,
            (std::vector<std::pair<std::string, PresetKind>>{{"Rust", PresetKind::kSurfaceColor}}));
  EXPECT_EQ(links_.SurfaceColorCategory, "Old Surface");

  Settle();
  work = target_.Accept("Rust");
  EXPECT_TRUE(work.showPage && work.closeDrawer && work.clearProgress && !work.settingsChanged);
  EXPECT_FALSE(render_.surfaceStale);
  EXPECT_EQ(Surface(), kRust);
  EXPECT_EQ(links_.SurfaceColorCategory, "Rust");
  EXPECT_EQ(links_.BackgroundColorCategory, "Old Background");
  EXPECT_EQ(Record(), kRecordBefore);
  EXPECT_EQ(Layer(), kLayerBefore);
}

TEST_F(ColorDrawer, SurfaceGoesBackOnCancel) {
  (void)target_.OpenForSurface(views_);
  (void)target_.Try("Rust");
  (void)target_.Try("Moss");
  Settle();
  const ColorWork work = target_.Cancel();
  EXPECT_TRUE(work.settingsChanged && work.closeDrawer && !work.showPage);
  EXPECT_EQ(Surface(), kSurfaceBefore);
  EXPECT_TRUE(render_.surfaceStale);
  EXPECT_EQ(links_.SurfaceColorCategory, "Old Surface");
}

TEST_F(ColorDrawer, ResetColorsAreCustom) {
  (void)target_.OpenForSurface(views_);
  (void)target_.Try("Reset Colors");
  // As a record that was reset has them.
  EffectSettings defaults;
  SettingsSession unused;
  ResetAllSettings(defaults, unused);
  EXPECT_EQ(Surface(), (Tones{defaults.SurfaceHighlightColor, defaults.SurfaceMidtoneColor,
                              defaults.SurfaceShadowColor}));
  EXPECT_TRUE(loaded_.empty());
  (void)target_.Accept("Reset Colors");
  EXPECT_EQ(links_.SurfaceColorCategory, "Custom");

  (void)target_.OpenForBackground();
  (void)target_.Try("Reset Colors");
  EXPECT_EQ(Layer(), (Tones{defaults.BackgroundHighlightColor, defaults.BackgroundMidtoneColor,
                            defaults.BackgroundShadowColor}));
  EXPECT_EQ(Record(), kRecordBefore);
  (void)target_.Accept("Reset Colors");
  EXPECT_EQ(Record(), Layer());
  EXPECT_EQ(links_.BackgroundColorCategory, "Custom");
}

TEST_F(ColorDrawer, BackgroundIsTriedInItsLayerAlone) {
  const ColorOpening opening = target_.OpenForBackground();
  EXPECT_EQ(opening.target, ColorTargetKind::kBackground);
  EXPECT_EQ(opening.layer, &layers_.background);
  EXPECT_TRUE(target_.Try("Moss").settingsChanged);
  EXPECT_EQ(Layer(), kMoss);
  EXPECT_TRUE(layers_.background.toneDirty);
  EXPECT_EQ(Record(), kRecordBefore);
  EXPECT_EQ(Surface(), kSurfaceBefore);
  EXPECT_FALSE(render_.surfaceStale);
  EXPECT_EQ(loaded_.back().second, PresetKind::kBackgroundColor);

  Settle();
  EXPECT_TRUE(target_.Cancel().settingsChanged);
  EXPECT_EQ(Layer(), kLayerBefore);
  EXPECT_TRUE(layers_.background.toneDirty);
  EXPECT_EQ(Record(), kRecordBefore);

  (void)target_.OpenForBackground();
  (void)target_.Try("Moss");
  Settle();
  const ColorWork work = target_.Accept("Moss.twkpst");
  EXPECT_TRUE(work.showPage && work.clearProgress && !work.settingsChanged);
  EXPECT_EQ(Record(), kMoss);
  EXPECT_FALSE(layers_.background.toneDirty);
  EXPECT_EQ(links_.BackgroundColorCategory, "Moss");
  EXPECT_EQ(links_.SurfaceColorCategory, "Old Surface");
}

TEST_F(ColorDrawer, AMissingPresetShowsTheOneBefore) {
  (void)target_.OpenForBackground();
  (void)target_.Try("Rust");
  (void)target_.Try("Gone");
  EXPECT_EQ(Layer(), kRust);
}

// 30 / 150 and 120 / 150: each surface has the depth of the other.
TEST_F(ColorDrawer, TheDepthIsThatOfTheOtherSurface) {
  settings_.SurfaceDepth1 = 30;
  settings_.SurfaceDepth2 = 120;
  ColorOpening opening = target_.OpenForSurface(views_);
  EXPECT_EQ(opening.layer, &layers_.surfaces[0]);
  EXPECT_FLOAT_EQ(opening.depthFactor, 0.8F);
  // The view alone does not make a second surface.
  views_.surfaceView = ViewMode::kSurfaceTwo;
  EXPECT_EQ(target_.OpenForSurface(views_).layer, &layers_.surfaces[0]);
  settings_.SecondSurfaceExists = 1;
  opening = target_.OpenForSurface(views_);
  EXPECT_EQ(opening.layer, &layers_.surfaces[1]);
  EXPECT_FLOAT_EQ(opening.depthFactor, 0.2F);
}

TEST_F(ColorDrawer, NamesAreCutAndNothingChosenChangesNothing) {
  (void)target_.OpenForSurface(views_);
  EXPECT_FALSE(target_.Try("").settingsChanged);
  EXPECT_TRUE(target_.Accept("").closeDrawer);
  EXPECT_EQ(Surface(), kSurfaceBefore);
  EXPECT_EQ(links_.SurfaceColorCategory, "Old Surface");
  // Closed: what comes late is not for it.
  EXPECT_FALSE(target_.Try("Rust").settingsChanged);
  EXPECT_FALSE(target_.Cancel().settingsChanged);
  EXPECT_EQ(Surface(), kSurfaceBefore);
  (void)target_.OpenForSurface(views_);
  (void)target_.Accept(std::string(70, 'n'));
  EXPECT_EQ(links_.SurfaceColorCategory, std::string(63, 'n'));
}

}  // namespace
}  // namespace tarnwick
