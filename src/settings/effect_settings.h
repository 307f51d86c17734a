#pragma once
#include <cstddef>
#include <cstdint>
#include <string>

namespace tarnwick {

// Room for a texture's file name: at most 127 bytes and a NUL.
inline constexpr std::size_t kTextureNameSize = 128;

// A group with this name is off for every stage of the render; the dialog
// writes it where the user removes a texture.
inline constexpr char kNoTextureName[] = "No_Texture.twk";

// A flat surface: colour and light without relief.
inline constexpr char kSolidTextureName[] = "Solid.twk";

// What an unset colour category is called, and the longest one, in bytes.
inline constexpr char kCustomCategory[] = "Custom";
inline constexpr std::size_t kMaxCategoryName = 63;

// All that says what the filter is to do.
//
// A plain record at natural alignment. Whoever holds it reads and writes the
// fields directly; it may be copied as memory and lives as such in the host's
// handle. Nothing validates it: ranges are those of the dialog's controls,
// while presets and scripting may store whatever fits the type.
//
// Fields of a pair end in 1 and 2, for the first and the second wash or
// surface. Ranges, keys, defaults and a line of help for each field stand in
// settings_table.cpp.
//
// Flags      8-bit, 0 or 1.
// Names      NUL-terminated 8-bit file names with extension, no directory.
// Colours    red in the low byte, then green, then blue; top byte 0.
// Angles     degrees. The rotations are 0, 90, 180 or 270.
// Offsets    pixels.
// Weights, intensities, scales and the like are the sliders' numbers.
//
// A fresh record is all zero; ResetAllSettings gives the defaults.
struct EffectSettings {
  // Where the result goes, and markers for a run of several passes.
  std::uint8_t NewLayerEffect = 0;      // to a new layer above the current one
  std::uint8_t MaskLayerEffect = 0;     // the wash to a layer mask
  std::uint8_t NewLayerBackground = 0;  // the background to a new layer below
  std::uint8_t NewLayerSurface = 0;     // the surface to a new layer above
  std::uint8_t LinkNewLayer = 0;        // pass marker
  std::uint8_t WashUse = 0;             // the wash group is on
  std::uint8_t SecondWashExists = 0;    // the second wash takes part
  std::uint8_t LinkNewWash = 0;         // pass marker

  // Wash.
  char WashFileName1[kTextureNameSize] = {};
  char WashFileName2[kTextureNameSize] = {};
  std::int32_t WashScale1 = 0;
  std::int32_t WashScale2 = 0;
  std::int32_t WashIntensity1 = 0;
  std::int32_t WashIntensity2 = 0;
  std::uint8_t WashFlipHor1 = 0;  // reverses the rows: top and bottom change places
  std::uint8_t WashFlipHor2 = 0;
  std::uint8_t WashFlipVer1 = 0;  // mirrors left to right
  std::uint8_t WashFlipVer2 = 0;
  std::uint8_t WashInvert1 = 0;
  std::uint8_t WashInvert2 = 0;
  std::int32_t WashAngle1 = 0;
  std::int32_t WashAngle2 = 0;
  std::int32_t WashCoverage1 = 0;
  std::int32_t WashCoverage2 = 0;
  std::int32_t WashCoverageScale1 = 0;
  std::int32_t WashCoverageScale2 = 0;
  std::int32_t WashEdgeDistance1 = 0;
  std::int32_t WashEdgeDistance2 = 0;
  std::int32_t WashEdgeSoftness1 = 0;
  std::int32_t WashEdgeSoftness2 = 0;
  std::uint8_t WashInside1 = 0;  // 1 inside the selection, 0 outside
  std::uint8_t WashInside2 = 0;
  std::int32_t WashRandomize1 = 0;  // seed of the coverage pattern
  std::int32_t WashRandomize2 = 0;
  std::uint32_t WashStainColor1 = 0;
  std::uint32_t WashStainColor2 = 0;
  std::uint8_t WashType1 = 0;  // 0 Erosion, 1 Stain, 2 Bleach, 3 Color
  std::uint8_t WashType2 = 0;

  // Background.
  std::uint8_t BackgroundUse = 0;
  std::uint8_t BackgroundEntire = 0;   // apply to the entire picture
  std::uint8_t LinkNewBackground = 0;  // pass marker
  std::int32_t LinkNewSurface = 0;     // pass number of the surface layer's run
  char BackgroundFileName[kTextureNameSize] = {};
  std::int32_t BackgroundScale = 0;
  std::uint8_t BackgroundFlipHor = 0;
  std::uint8_t BackgroundFlipVer = 0;
  std::uint8_t BackgroundInvert = 0;
  std::int32_t BackgroundAngle = 0;
  std::int32_t BackgroundHighlight = 0;
  std::int32_t BackgroundMidtone = 0;
  std::int32_t BackgroundShadow = 0;
  std::int32_t BackgroundHue = 0;
  std::int32_t BackgroundEnhancedMode = 0;
  std::uint32_t BackgroundHighlightColor = 0;
  std::uint32_t BackgroundMidtoneColor = 0;
  std::uint32_t BackgroundShadowColor = 0;

  // Surface.
  std::uint8_t SurfaceFlipHor1 = 0;
  std::uint8_t SurfaceFlipHor2 = 0;
  std::uint8_t SurfaceFlipVer1 = 0;
  std::uint8_t SurfaceFlipVer2 = 0;
  std::uint8_t SurfaceUse = 0;
  std::uint8_t SurfaceEntire = 0;           // apply to the entire picture
  std::uint8_t SurfaceIncludeWashArea = 0;  // the surface also covers the wash
  std::uint8_t SecondSurfaceExists = 0;
  char SurfaceFileName1[kTextureNameSize] = {};
  char SurfaceFileName2[kTextureNameSize] = {};
  std::int32_t SurfaceDepth1 = 0;
  std::int32_t SurfaceDepth2 = 0;
  std::int32_t SurfaceScale1 = 0;
  std::int32_t SurfaceScale2 = 0;
  std::uint8_t SurfaceInvert1 = 0;
  std::uint8_t SurfaceInvert2 = 0;
  std::int32_t SurfaceBrightness = 0;
  std::int32_t SurfaceContrast = 0;
  std::int32_t SurfaceHue = 0;
  std::int32_t SurfaceIntensity = 0;
  std::uint8_t SurfaceType1 = 0;  // 0 Colorize, 1 Tint, 2 Boost, 3 Enhance, 4 Vivid
  std::uint8_t SurfaceType2 = 0;
  std::uint8_t SurfacePerspectiveOn = 0;
  std::int32_t SurfaceHighlight = 0;
  std::int32_t SurfaceMidtone = 0;
  std::int32_t SurfaceShadow = 0;
  float SurfaceLightAlpha = 0.0f;  // azimuth of the light, degrees
  float SurfaceLightBeta = 0.0f;   // elevation of the light, degrees
  std::uint32_t SurfaceHighlightColor = 0;
  std::uint32_t SurfaceMidtoneColor = 0;
  std::uint32_t SurfaceShadowColor = 0;
  std::int32_t SurfaceAngle1 = 0;
  std::int32_t SurfaceAngle2 = 0;

  // Texture offsets.
  std::int32_t WashOffsetX1 = 0;
  std::int32_t WashOffsetY1 = 0;
  std::int32_t WashOffsetX2 = 0;
  std::int32_t WashOffsetY2 = 0;
  std::int32_t BackgroundOffsetX = 0;
  std::int32_t BackgroundOffsetY = 0;
  std::int32_t SurfaceOffsetX1 = 0;
  std::int32_t SurfaceOffsetY1 = 0;
  std::int32_t SurfaceOffsetX2 = 0;
  std::int32_t SurfaceOffsetY2 = 0;

  // Run state. The addresses mean something only in the process that wrote
  // them; they never go into presets or the scripting descriptor.
  std::uint8_t SnapshotHeld = 0;        // the dialog skips its next snapshot of the record
  std::uintptr_t SavedWashMask1 = 0;    // coverage of wash 1 from an earlier pass
  std::uintptr_t SavedWashMask2 = 0;    // coverage of wash 2 from an earlier pass
  std::uintptr_t SavedSurfaceMask = 0;  // surface buffer from an earlier pass

  // Frame of the dialog, screen pixels.
  std::int32_t WindowLeft = 0;
  std::int32_t WindowTop = 0;
  std::int32_t WindowWidth = 0;
  std::int32_t WindowHeight = 0;

  // Carried through scripting, without effect on pixels.
  std::int16_t Amount = 0;        // percent
  std::uint16_t Disposition = 0;  // 0 to 3
  std::uint8_t IgnoreSelection = 0;

  // Batch.
  std::uint8_t ApplyToAll = 0;       // run over many pictures with one dialog
  std::uint8_t ApplyToAllFirst = 0;  // this is the first picture of such a run
  std::uint8_t BatchMode = 0;        // the dialog is part of such a run
};

// What belongs to the settings but lives as long as the module: link buttons
// and the names of the colour presets in use (at most kMaxCategoryName bytes).
struct SettingsSession {
  // The settings of effects with the same texture move together; and a linked
  // second wash or surface takes the first one's texture name whenever it is
  // configured. No reset touches them.
  std::uint8_t WashLinked = 0;
  std::uint8_t SurfaceLinked = 0;
  std::uint8_t BackgroundLinked = 0;

  // The full-size picker shows its textures in the picture at once.
  std::uint8_t PickerLivePreview = 0;

  std::string BackgroundColorCategory = kCustomCategory;
  std::string SurfaceColorCategory = kCustomCategory;
};

// A fresh block: batch and run flags, then ResetAllSettings.
void InitSettingsToDefaults(EffectSettings& settings, SettingsSession& session);

// Every setting of the record to its default, and PickerLivePreview off. Leaves
// the batch flags, SnapshotHeld and the link flags alone.
void ResetAllSettings(EffectSettings& settings, SettingsSession& session);

// Numbers, flags and texture offset of one wash; not its name. The two differ
// in their default type and stain colour.
void ResetWash1(EffectSettings& settings);
void ResetWash2(EffectSettings& settings);

// All of the background but its name and the pass markers; its colour category
// becomes "Custom".
void ResetBackground(EffectSettings& settings, SettingsSession& session);

// Depth, scale, invert, flips, angle, offset and type of one surface; not its
// name. The first also makes the surface's colour category "Custom".
void ResetSurface1(EffectSettings& settings, SettingsSession& session);
void ResetSurface2(EffectSettings& settings);

// What both surfaces share: area, tones, light, perspective and colours.
void ResetSurfaceCommon(EffectSettings& settings);

// Only the three surface colours.
void ResetSurfaceColors(EffectSettings& settings);

}  // namespace tarnwick
