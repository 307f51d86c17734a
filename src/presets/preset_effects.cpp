#include "presets/preset_effects.h"

#include <string_view>

#include "presets/preset_lines.h"
#include "settings/settings_access.h"

namespace tarnwick {
namespace {

constexpr std::uint32_t kWashUse = PresetKey("nOSW");
constexpr std::uint32_t kWashCoverage1 = PresetKey("1voC");
constexpr std::uint32_t kWashCoverage2 = PresetKey("2voC");
constexpr std::uint32_t kSecondWashExists = PresetKey("xE2W");
constexpr std::uint32_t kSurfaceUse = PresetKey("nOfS");
constexpr std::uint32_t kSecondSurfaceExists = PresetKey("E2fS");
constexpr std::uint32_t kSurfaceFileName1 = PresetKey("1NFS");
constexpr std::uint32_t kSurfaceFileName2 = PresetKey("2NFS");
constexpr std::uint32_t kSurfaceMidtoneColor = PresetKey("1CMS");
constexpr std::uint32_t kBackgroundUse = PresetKey("nOkB");
constexpr std::uint32_t kBackgroundFileName = PresetKey("NFkB");

// What version 1 files show through where they name no surface texture.
constexpr std::string_view kVersion1Texture = "General_Store.twk";
constexpr std::uint32_t kVersion1Highlight = 0xFFFFFF;
constexpr std::uint32_t kVersion1Shadow = 12950;

void RemovePair(char (&first)[kTextureNameSize], char (&second)[kTextureNameSize],
                std::uint8_t& secondExists) {
  StoreTextureName(first, kNoTextureName);
  if (secondExists != 0) StoreTextureName(second, kNoTextureName);
  secondExists = 0;
}

// Version 1 had no way to leave the texture out while the surface is on.
void ReplaceMissingSurface(char (&name)[kTextureNameSize], std::int32_t& depth,
                           std::uint8_t surfaceUse) {
  if (std::string_view(name) != kNoTextureName || surfaceUse == 0) return;
  StoreTextureName(name, kVersion1Texture);
  depth = 0;
}

// In unsigned numbers: a broken value must not overflow.
std::int32_t InvertedCoverage(std::int32_t value) {
  return static_cast<std::int32_t>(100u - static_cast<std::uint32_t>(value));
}

}  // namespace

void ApplyPresetSideEffects(std::uint32_t key, EffectSettings& settings, std::int32_t version) {
  switch (key) {
    case kWashUse:
      if (settings.WashUse == 0) {
        RemovePair(settings.WashFileName1, settings.WashFileName2, settings.SecondWashExists);
      }
      break;
    case kSurfaceUse:
      if (settings.SurfaceUse == 0) {
        RemovePair(settings.SurfaceFileName1, settings.SurfaceFileName2,
                   settings.SecondSurfaceExists);
      } else {
        settings.SurfaceUse = 1;
      }
      break;
    case kBackgroundUse:
      if (settings.BackgroundUse == 0) {
        StoreTextureName(settings.BackgroundFileName, kNoTextureName);
      }
      break;
    case kBackgroundFileName:
      if (version == 2 && std::string_view(settings.BackgroundFileName) == kNoTextureName) {
        settings.BackgroundUse = 0;
      }
      break;
    default:
      break;
  }
}

void ConvertFromVersion1(std::uint32_t key, EffectSettings& settings) {
  switch (key) {
    case kWashCoverage1:
      settings.WashCoverage1 = InvertedCoverage(settings.WashCoverage1);
      break;
    case kWashCoverage2:
      settings.WashCoverage2 = InvertedCoverage(settings.WashCoverage2);
      break;
    case kWashUse:
      settings.WashType1 = 0;
      break;
    case kSecondWashExists:
      if (settings.SecondWashExists != 0) settings.WashType2 = 0;
      break;
    case kSurfaceUse:
      settings.SurfaceHue = 0;
      settings.SurfaceBrightness = 100;
      settings.SurfaceContrast = 100;
      settings.SurfaceType1 = 0;
      break;
    case kSecondSurfaceExists:
      if (settings.SecondSurfaceExists != 0) settings.SurfaceType2 = 0;
      break;
    case kSurfaceFileName1:
      settings.SurfaceType1 = 0;
      ReplaceMissingSurface(settings.SurfaceFileName1, settings.SurfaceDepth1, settings.SurfaceUse);
      break;
    case kSurfaceFileName2:
      // The first surface's type: the second has its own from E2fS.
      settings.SurfaceType1 = 0;
      ReplaceMissingSurface(settings.SurfaceFileName2, settings.SurfaceDepth2, settings.SurfaceUse);
      break;
    case kSurfaceMidtoneColor:
      // The only tone of a version 1 file; the others are fixed.
      settings.SurfaceHighlight = 100;
      settings.SurfaceShadow = 100;
      settings.SurfaceBrightness = 100;
      settings.SurfaceContrast = 100;
      settings.SurfaceHighlightColor = kVersion1Highlight;
      settings.SurfaceShadowColor = kVersion1Shadow;
      settings.SurfaceHue = 0;
      settings.SurfaceType1 = 0;
      break;
    case kBackgroundUse:
      settings.BackgroundHue = 0;
      settings.BackgroundEnhancedMode = 0;
      break;
    default:
      break;
  }
}

}  // namespace tarnwick
