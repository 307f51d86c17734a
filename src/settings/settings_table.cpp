#include "settings/settings_table.h"

#include <algorithm>
#include <type_traits>

#include "settings/ascii_text.h"

namespace tarnwick {
namespace {

using Block = SettingBlock;
using Section = PresetSection;
using Range = SettingRange;
using enum SettingType;

static_assert(std::is_standard_layout_v<EffectSettings>);
static_assert(std::is_trivially_copyable_v<EffectSettings>);
static_assert(std::is_standard_layout_v<SettingsSession>);

constexpr const char* kWashLabels[] = {"Erosion", "Stain", "Bleach", "Color"};
constexpr const char* kSurfaceLabels[] = {"Colorize", "Tint", "Boost", "Enhance", "Vivid"};

constexpr Range kAny{1, 0};
constexpr Range kSwitch{0, 1};
constexpr Range kAngle{0, 270, 90};
constexpr Range kColorWord{0, 0xFFFFFF};
constexpr Range kWashKind{0, 3, 1, kWashLabels};
constexpr Range kSurfaceKind{0, 4, 1, kSurfaceLabels};

constexpr std::uint32_t Code(const char (&text)[5]) {
  return FourCharacterCode(text);
}

#define RECORD(m) #m, false, offsetof(EffectSettings, m), sizeof(EffectSettings::m)
#define SESSION(m) #m, true, offsetof(SettingsSession, m), sizeof(SettingsSession::m)

// Rows of a preset's section stand in the order of its lines. Some comments are
// misspelt or name the wrong thing; files carry them so.
constexpr SettingField kTable[] = {
    {RECORD(NewLayerEffect), Code("NLBs"), kFlag, kSwitch, 0, Block::kOutput, Section::kCommon,
     ";Effect in new layer", "put the result on a new layer above the current one"},
    {RECORD(WashUse), Code("WSOn"), kFlag, kSwitch, 1, Block::kSwitches, Section::kWash,
     ";Use Wash", "the washes take part; off when the first has no texture"},
    {RECORD(MaskLayerEffect), Code("NLWs"), kFlag, kSwitch, 0, Block::kOutput, Section::kFirstWash,
     ";Effect on Mask", "put the wash into a layer mask"},
    {RECORD(WashType1), Code("WTp1"), kByte, kWashKind, 0, Block::kWash1, Section::kFirstWash,
     ";Type of Wash1", "kind of wash 1"},
    {RECORD(WashStainColor1), Code("WSt1"), kColor, kColorWord, 0, Block::kWash1,
     Section::kFirstWash, ";Stain Color of Wash1", "colour of wash 1, for the kinds that use one"},
    {RECORD(WashFileName1), Code("WFN1"), kText, kAny, "Scratched.twk", Block::kWashName1,
     Section::kFirstWash, ";Name of Wash1", "texture of wash 1"},
    {RECORD(WashScale1), Code("WSc1"), kInteger, Range{0, 200}, 0, Block::kWash1,
     Section::kFirstWash, ";Scale of Wash1",
     "texture scale of wash 1: 0 just covers the picture, 200 is 1.8 times that"},
    {RECORD(WashIntensity1), Code("WIt1"), kInteger, Range{1, 200}, 100, Block::kWash1,
     Section::kFirstWash, ";Intensity of Wash1", "strength of wash 1"},
    {RECORD(WashFlipHor1), Code("WFH1"), kFlag, kSwitch, 0, Block::kWash1, Section::kFirstWash,
     ";Flip Wash1 Hor.", "turn the texture of wash 1 upside down"},
    {RECORD(WashFlipVer1), Code("WFV1"), kFlag, kSwitch, 0, Block::kWash1, Section::kFirstWash,
     ";Flip Wash1 Ver.", "mirror the texture of wash 1 left to right"},
    {RECORD(WashInvert1), Code("WIv1"), kFlag, kSwitch, 0, Block::kWash1, Section::kFirstWash,
     ";Invert Wash1", "invert the texture of wash 1"},
    {RECORD(WashInside1), Code("Isd1"), kFlag, kSwitch, 1, Block::kWash1, Section::kFirstWash,
     ";Wash1 Inside", "wash 1 works inside the selection; off: outside"},
    {RECORD(WashAngle1), Code("WAg1"), kInteger, kAngle, 0, Block::kWash1, Section::kFirstWash,
     ";Wash1 Angle", "rotation of the texture of wash 1, degrees"},
    {RECORD(WashCoverage1), Code("Cov1"), kInteger, Range{-100, 100}, 0, Block::kWash1,
     Section::kFirstWash, ";Wash1 Coverage", "how much of the picture wash 1 covers"},
    {RECORD(WashCoverageScale1), Code("CSc1"), kInteger, Range{1, 200}, 100, Block::kWash1,
     Section::kFirstWash, ";Wash1 Coverage Scale", "size of the patches of wash 1"},
    {RECORD(WashEdgeDistance1), Code("EDs1"), kInteger, Range{0, 100}, 0, Block::kWash1,
     Section::kFirstWash, ";Wash1 Edge Distance",
     "distance of wash 1 from the edge of the selection"},
    {RECORD(WashEdgeSoftness1), Code("ESf1"), kInteger, Range{0, 200}, 0, Block::kWash1,
     Section::kFirstWash, ";Wash1 Edge Softness",
     "blur or sharpness of wash 1 at the edge of the selection"},
    {RECORD(WashRandomize1), Code("Rnd1"), kInteger, kAny, 123, Block::kWash1, Section::kFirstWash,
     ";Wash1 Ransomize", "seed of the patches of wash 1"},
    {RECORD(SecondWashExists), Code("W2Ex"), kFlag, kSwitch, 0, Block::kSwitches,
     Section::kFirstWash, ";Second Wash Exist", "the second wash takes part"},
    {RECORD(WashFileName2), Code("WFN2"), kText, kAny, "General_Store.twk", Block::kWashName2,
     Section::kSecondWash, ";Name of Wash2", "texture of wash 2"},
    {RECORD(WashScale2), Code("WSc2"), kInteger, Range{0, 200}, 0, Block::kWash2,
     Section::kSecondWash, ";Scale of Wash2",
     "texture scale of wash 2: 0 just covers the picture, 200 is 1.8 times that"},
    {RECORD(WashIntensity2), Code("WIt2"), kInteger, Range{1, 200}, 100, Block::kWash2,
     Section::kSecondWash, ";Intensity of Wash2", "strength of wash 2"},
    {RECORD(WashType2), Code("WTp2"), kByte, kWashKind, 1, Block::kWash2, Section::kSecondWash,
     ";Type of Wash2", "kind of wash 2"},
    {RECORD(WashStainColor2), Code("WSt2"), kColor, kColorWord, 0x006464, Block::kWash2,
     Section::kSecondWash, ";Stain Color of Wash2", "colour of wash 2, for the kinds that use one"},
    {RECORD(WashFlipHor2), Code("WFH2"), kFlag, kSwitch, 0, Block::kWash2, Section::kSecondWash,
     ";Flip Wash2 Hor.", "turn the texture of wash 2 upside down"},
    {RECORD(WashFlipVer2), Code("WFV2"), kFlag, kSwitch, 0, Block::kWash2, Section::kSecondWash,
     ";Flip Wash2 Ver.", "mirror the texture of wash 2 left to right"},
    {RECORD(WashInvert2), Code("WIv2"), kFlag, kSwitch, 0, Block::kWash2, Section::kSecondWash,
     ";Invert Wash2", "invert the texture of wash 2"},
    {RECORD(WashInside2), Code("Isd2"), kFlag, kSwitch, 1, Block::kWash2, Section::kSecondWash,
     ";Wash2 Inside", "wash 2 works inside the selection; off: outside"},
    {RECORD(WashAngle2), Code("WAg2"), kInteger, kAngle, 0, Block::kWash2, Section::kSecondWash,
     ";Wash2 Angle", "rotation of the texture of wash 2, degrees"},
    {RECORD(WashCoverage2), Code("Cov2"), kInteger, Range{-100, 100}, 0, Block::kWash2,
     Section::kSecondWash, ";Wash2 Coverage", "how much of the picture wash 2 covers"},
    {RECORD(WashCoverageScale2), Code("CSc2"), kInteger, Range{1, 200}, 100, Block::kWash2,
     Section::kSecondWash, ";Wash2 Coverage Scale", "size of the patches of wash 2"},
    {RECORD(WashEdgeDistance2), Code("EDs2"), kInteger, Range{0, 100}, 0, Block::kWash2,
     Section::kSecondWash, ";Wash2 Edge Distance",
     "distance of wash 2 from the edge of the selection"},
    {RECORD(WashEdgeSoftness2), Code("ESf2"), kInteger, Range{0, 200}, 0, Block::kWash2,
     Section::kSecondWash, ";Wash2 Edge Softness",
     "blur or sharpness of wash 2 at the edge of the selection"},
    {RECORD(WashRandomize2), Code("Rnd2"), kInteger, kAny, 123, Block::kWash2, Section::kSecondWash,
     ";Wash2 Ransomize", "seed of the patches of wash 2"},
    {RECORD(SurfaceUse), Code("SfOn"), kFlag, kSwitch, 1, Block::kSwitches, Section::kSurface,
     ";Surface Use", "the surfaces take part; off when the first has no texture"},
    {RECORD(SurfaceFlipVer1), Code("SFV1"), kFlag, kSwitch, 0, Block::kSurface1,
     Section::kFirstSurface, ";Flip Surf1 Ver.", "mirror the texture of surface 1 left to right"},
    {RECORD(SurfaceFlipHor1), Code("SFH1"), kFlag, kSwitch, 0, Block::kSurface1,
     Section::kFirstSurface, ";Flip Surf1 Hor.", "turn the texture of surface 1 upside down"},
    {RECORD(SurfaceAngle1), Code("SAg1"), kInteger, kAngle, 0, Block::kSurface1,
     Section::kFirstSurface, ";Surf1 Angle", "rotation of the texture of surface 1, degrees"},
    {RECORD(SurfaceFileName1), Code("SFN1"), kText, kAny, "Battleship.twk", Block::kSurfaceName1,
     Section::kFirstSurface, ";Surface1 Name", "texture of surface 1"},
    {RECORD(SurfaceEntire), Code("SfEn"), kFlag, kSwitch, 0, Block::kSurfaceCommon,
     Section::kFirstSurface, ";Surface Entire whole",
     "fill what is transparent in the picture, too"},
    {RECORD(SurfaceIncludeWashArea), Code("SInW"), kFlag, kSwitch, 0, Block::kSurfaceCommon,
     Section::kFirstSurface, ";Include Wash Area",
     "the surface also covers what the wash wears away"},
    {RECORD(SurfaceDepth1), Code("SDh1"), kInteger, Range{0, 100}, 50, Block::kSurface1,
     Section::kFirstSurface, ";Surface1 Depth", "strength of the relief of surface 1"},
    {RECORD(SurfaceScale1), Code("SSc1"), kInteger, Range{0, 200}, 0, Block::kSurface1,
     Section::kFirstSurface, ";Surface1 Scale",
     "texture scale of surface 1: 0 just covers the picture, 200 is 1.8 times that"},
    {RECORD(SurfaceInvert1), Code("SIn1"), kFlag, kSwitch, 0, Block::kSurface1,
     Section::kFirstSurface, ";Surface1 Invert", "invert the texture of surface 1"},
    {RECORD(SurfacePerspectiveOn), Code("SPO1"), kFlag, kSwitch, 0, Block::kSurfaceCommon,
     Section::kFirstSurface, ";Surface Perspective On", "bend the picture along the relief"},
    {RECORD(SurfaceType1), Code("STp1"), kByte, kSurfaceKind, 1, Block::kSurface1,
     Section::kFirstSurface, ";Type of Surface1", "kind of surface 1"},
    {RECORD(SurfaceBrightness), Code("SBRH"), kInteger, Range{0, 200}, 100, Block::kSurfaceCommon,
     Section::kFirstSurface, ";Surface Brightness", "strength of the brightness of the picture"},
    {RECORD(SurfaceContrast), Code("SfCn"), kInteger, Range{0, 200}, 100, Block::kSurfaceCommon,
     Section::kFirstSurface, ";Surface Contrast", "strength of the contrast of the picture"},
    {RECORD(SurfaceHue), Code("SHue"), kInteger, Range{-100, 100}, 0, Block::kSurfaceCommon,
     Section::kFirstSurface, ";Surface Hue", "hue shift of the surfaces"},
    {RECORD(SurfaceIntensity), Code("SfIn"), kInteger, Range{0, 100}, 100, Block::kSurfaceCommon,
     Section::kFirstSurface, ";Surface Intensity", "share of the shaded surface in the picture"},
    {RECORD(SurfaceMidtone), Code("SMD1"), kInteger, Range{0, 100}, 50, Block::kSurfaceCommon,
     Section::kFirstSurface, ";Surface Midtone", "strength of the colorization"},
    {RECORD(SurfaceHighlightColor), Code("SHC1"), kColor, kColorWord, 0xFFFFFF,
     Block::kSurfaceColors, Section::kFirstSurface, ";Surface Hightlight Color",
     "highlight colour of the surfaces"},
    {RECORD(SurfaceMidtoneColor), Code("SMC1"), kColor, kColorWord, 0x00C8C8, Block::kSurfaceColors,
     Section::kFirstSurface, ";Surface Midtone Color", "midtone colour of the surfaces"},
    {RECORD(SurfaceShadowColor), Code("SSC1"), kColor, kColorWord, 0x003296, Block::kSurfaceColors,
     Section::kFirstSurface, ";Surface Shadow Color", "shadow colour of the surfaces"},
    {RECORD(SurfaceLightAlpha), Code("SAp1"), kFloat, kAny, 58.0, Block::kSurfaceCommon,
     Section::kFirstSurface, ";Surface light alpha",
     "direction of the light, degrees round the picture"},
    {RECORD(SurfaceLightBeta), Code("SBt1"), kFloat, kAny, 35.0, Block::kSurfaceCommon,
     Section::kFirstSurface, ";Surface light beta",
     "height of the light, degrees above the picture"},
    {RECORD(SecondSurfaceExists), Code("Sf2E"), kFlag, kSwitch, 0, Block::kPasses,
     Section::kFirstSurface, ";Surface2 Exists", "the second surface takes part"},
    {RECORD(SurfaceType2), Code("STp2"), kByte, kSurfaceKind, 0, Block::kSurface2,
     Section::kSecondSurface, ";Type of Surface2", "kind of surface 2"},
    {RECORD(SurfaceFlipVer2), Code("SFV2"), kFlag, kSwitch, 0, Block::kSurface2,
     Section::kSecondSurface, ";Flip Surf2 Ver.", "mirror the texture of surface 2 left to right"},
    {RECORD(SurfaceFlipHor2), Code("SFH2"), kFlag, kSwitch, 0, Block::kSurface2,
     Section::kSecondSurface, ";Flip Surf2 Ver.", "turn the texture of surface 2 upside down"},
    {RECORD(SurfaceAngle2), Code("SAg2"), kInteger, kAngle, 0, Block::kSurface2,
     Section::kSecondSurface, ";Surf2 Angle", "rotation of the texture of surface 2, degrees"},
    {RECORD(SurfaceFileName2), Code("SFN2"), kText, kAny, "Fiberglass.twk", Block::kSurfaceName2,
     Section::kSecondSurface, ";Surface2 Name", "texture of surface 2"},
    {RECORD(SurfaceDepth2), Code("SDh2"), kInteger, Range{0, 100}, 50, Block::kSurface2,
     Section::kSecondSurface, ";Surface2 Depth", "strength of the relief of surface 2"},
    {RECORD(SurfaceScale2), Code("SSc2"), kInteger, Range{0, 200}, 0, Block::kSurface2,
     Section::kSecondSurface, ";Surface2 Scale",
     "texture scale of surface 2: 0 just covers the picture, 200 is 1.8 times that"},
    {RECORD(SurfaceInvert2), Code("SIn2"), kFlag, kSwitch, 0, Block::kSurface2,
     Section::kSecondSurface, ";Surface2 Invert", "invert the texture of surface 2"},
    {RECORD(BackgroundUse), Code("BkOn"), kFlag, kSwitch, 1, Block::kBackground,
     Section::kBackground, ";Use Background",
     "the background takes part; off when it has no texture"},
    {RECORD(BackgroundFileName), Code("BkFN"), kText, kAny, "Rusted.twk", Block::kBackgroundName,
     Section::kBackgroundDetails, ";Name of Background", "texture of the background"},
    {RECORD(NewLayerSurface), Code("NLSf"), kFlag, kSwitch, 0, Block::kOutput,
     Section::kBackgroundDetails, ";Surface in new layer", "put the surface on a new layer above"},
    {RECORD(NewLayerBackground), Code("NLBk"), kFlag, kSwitch, 0, Block::kOutput,
     Section::kBackgroundDetails, ";Background in new layer",
     "put the background on a new layer below"},
    {RECORD(BackgroundEntire), Code("BkEn"), kFlag, kSwitch, 0, Block::kBackground,
     Section::kBackgroundDetails, ";Background Entire whole",
     "fill what is transparent in the picture, too"},
    {RECORD(BackgroundFlipHor), Code("BFpH"), kFlag, kSwitch, 0, Block::kBackground,
     Section::kBackgroundDetails, ";Background Flip Hor.",
     "turn the texture of the background upside down"},
    {RECORD(BackgroundFlipVer), Code("BFpV"), kFlag, kSwitch, 0, Block::kBackground,
     Section::kBackgroundDetails, ";Background Flip Ver.",
     "mirror the texture of the background left to right"},
    {RECORD(BackgroundAngle), Code("BAng"), kInteger, kAngle, 0, Block::kBackground,
     Section::kBackgroundDetails, ";Back Angle",
     "rotation of the texture of the background, degrees"},
    {RECORD(BackgroundInvert), Code("BInv"), kFlag, kSwitch, 0, Block::kBackground,
     Section::kBackgroundDetails, ";Background Invert", "invert the texture of the background"},
    {RECORD(BackgroundScale), Code("BScl"), kInteger, Range{0, 200}, 0, Block::kBackground,
     Section::kBackgroundDetails, ";Background Scale",
     "texture scale of the background: 0 just covers the picture, 200 is 1.8 times that"},
    {RECORD(BackgroundHighlight), Code("BHLt"), kInteger, Range{0, 100}, 100, Block::kBackground,
     Section::kBackgroundDetails, ";Background Highlight",
     "weight of the highlight colour in thumbnails, without effect on the picture"},
    {RECORD(BackgroundMidtone), Code("BMdt"), kInteger, Range{0, 100}, 100, Block::kBackground,
     Section::kBackgroundDetails, ";Background Midtone", "saturation of the tone colours"},
    {RECORD(BackgroundShadow), Code("BSdw"), kInteger, Range{0, 100}, 100, Block::kBackground,
     Section::kBackgroundDetails, ";Background Shadow",
     "weight of the shadow colour in thumbnails, without effect on the picture"},
    {RECORD(BackgroundHue), Code("BHue"), kInteger, Range{-100, 100}, 0, Block::kBackground,
     Section::kBackgroundDetails, ";Background Hue", "hue shift of the background"},
    {RECORD(BackgroundEnhancedMode), Code("BEnh"), kInteger, kSwitch, 0, Block::kBackground,
     Section::kBackgroundDetails, ";Background Enhanced Mode",
     "darkest tones fade to black, brightest tones light up"},
    {RECORD(BackgroundHighlightColor), Code("BHCl"), kColor, kColorWord, 0x00C8FF,
     Block::kBackground, Section::kBackgroundDetails, ";Background Highlight Color",
     "highlight colour of the background"},
    {RECORD(BackgroundMidtoneColor), Code("BMCl"), kColor, kColorWord, 0x32329B, Block::kBackground,
     Section::kBackgroundDetails, ";Background Midtone Color", "midtone colour of the background"},
    {RECORD(BackgroundShadowColor), Code("BSCl"), kColor, kColorWord, 0x001E64, Block::kBackground,
     Section::kBackgroundDetails, ";Background Shadow Color", "shadow colour of the background"},
    {SESSION(WashLinked), Code("ILkW"), kByte, kSwitch, 0, Block::kLinks, Section::kLinks,
     ";Is Wash Linked",
     "washes with the same texture move together; the second takes the name of the first"},
    {SESSION(SurfaceLinked), Code("ILkS"), kByte, kSwitch, 0, Block::kLinks, Section::kLinks,
     ";Is Surface Linked",
     "surfaces with the same texture move together; the second takes the name of the first"},
    {SESSION(BackgroundLinked), Code("ILkB"), kByte, kSwitch, 0, Block::kLinks, Section::kLinks,
     ";Is Background Linked", "the background moves with effects of the same texture"},
    {SESSION(SurfaceColorCategory), 0, kCategory, kAny, kCustomCategory, Block::kSurface1,
     Section::kNone, nullptr, "name of the colour preset of the surfaces"},
    {SESSION(BackgroundColorCategory), 0, kCategory, kAny, kCustomCategory, Block::kBackground,
     Section::kNone, nullptr, "name of the colour preset of the background"},
    {RECORD(LinkNewLayer), Code("ILNL"), kFlag, kSwitch, 0, Block::kOutput, Section::kNone, nullptr,
     "marker of a run in several passes"},
    {RECORD(LinkNewWash), Code("ILNW"), kFlag, kSwitch, 0, Block::kSwitches, Section::kNone,
     nullptr, "marker of a run in several passes"},
    {RECORD(LinkNewBackground), Code("ILNB"), kFlag, kSwitch, 0, Block::kPasses, Section::kNone,
     nullptr, "marker of a run in several passes"},
    {RECORD(LinkNewSurface), Code("ILNS"), kInteger, kAny, 0, Block::kPasses, Section::kNone,
     nullptr, "pass number of a run in several passes"},
    {RECORD(SurfaceHighlight), Code("SHL1"), kInteger, Range{0, 100}, 100, Block::kSurfaceCommon,
     Section::kReadOnly, nullptr, "weight of the highlight colour, without effect on the picture"},
    {RECORD(SurfaceShadow), Code("SSw1"), kInteger, Range{0, 100}, 100, Block::kSurfaceCommon,
     Section::kReadOnly, nullptr, "weight of the shadow colour, without effect on the picture"},
    {RECORD(WashOffsetX1), Code("OW1X"), kInteger, kAny, 0, Block::kWash1, Section::kNone, nullptr,
     "horizontal offset of the texture of wash 1, pixels"},
    {RECORD(WashOffsetY1), Code("OW1Y"), kInteger, kAny, 0, Block::kWash1, Section::kNone, nullptr,
     "vertical offset of the texture of wash 1, pixels"},
    {RECORD(WashOffsetX2), Code("OW2X"), kInteger, kAny, 0, Block::kWash2, Section::kNone, nullptr,
     "horizontal offset of the texture of wash 2, pixels"},
    {RECORD(WashOffsetY2), Code("OW2Y"), kInteger, kAny, 0, Block::kWash2, Section::kNone, nullptr,
     "vertical offset of the texture of wash 2, pixels"},
    {RECORD(BackgroundOffsetX), Code("OfBX"), kInteger, kAny, 0, Block::kBackground, Section::kNone,
     nullptr, "horizontal offset of the texture of the background, pixels"},
    {RECORD(BackgroundOffsetY), Code("OfBY"), kInteger, kAny, 0, Block::kBackground, Section::kNone,
     nullptr, "vertical offset of the texture of the background, pixels"},
    {RECORD(SurfaceOffsetX1), Code("OS1X"), kInteger, kAny, 0, Block::kSurface1, Section::kNone,
     nullptr, "horizontal offset of the texture of surface 1, pixels"},
    {RECORD(SurfaceOffsetY1), Code("OS1Y"), kInteger, kAny, 0, Block::kSurface1, Section::kNone,
     nullptr, "vertical offset of the texture of surface 1, pixels"},
    {RECORD(SurfaceOffsetX2), Code("OS2X"), kInteger, kAny, 0, Block::kSurface2, Section::kNone,
     nullptr, "horizontal offset of the texture of surface 2, pixels"},
    {RECORD(SurfaceOffsetY2), Code("OS2Y"), kInteger, kAny, 0, Block::kSurface2, Section::kNone,
     nullptr, "vertical offset of the texture of surface 2, pixels"},
    {RECORD(SnapshotHeld), 0, kFlag, kSwitch, 0, Block::kSnapshot, Section::kNone, nullptr,
     "the dialog skips its next snapshot of the record"},
    {RECORD(SavedWashMask1), Code("SvE1"), kAddress, kAny, 0, Block::kAddresses, Section::kNone,
     nullptr, "coverage of wash 1 from an earlier pass"},
    {RECORD(SavedWashMask2), Code("SvE2"), kAddress, kAny, 0, Block::kAddresses, Section::kNone,
     nullptr, "coverage of wash 2 from an earlier pass"},
    {RECORD(SavedSurfaceMask), Code("SbSR"), kAddress, kAny, 0, Block::kAddresses, Section::kNone,
     nullptr, "surface buffer of an earlier pass"},
    {RECORD(WindowLeft), 0, kInteger, kAny, 100, Block::kFrame, Section::kNone, nullptr,
     "left edge of the dialog"},
    {RECORD(WindowTop), 0, kInteger, kAny, 100, Block::kFrame, Section::kNone, nullptr,
     "top edge of the dialog"},
    {RECORD(WindowWidth), 0, kInteger, kAny, 828, Block::kFrame, Section::kNone, nullptr,
     "width of the dialog"},
    {RECORD(WindowHeight), 0, kInteger, kAny, 602, Block::kFrame, Section::kNone, nullptr,
     "height of the dialog"},
    {RECORD(Amount), Code("Amnt"), kShort, kAny, 50, Block::kCarried, Section::kNone, nullptr,
     "percentage carried through scripting, without effect"},
    {RECORD(Disposition), Code("disP"), kWord, Range{0, 3}, 1, Block::kCarried, Section::kNone,
     nullptr, "number carried through scripting, without effect"},
    {RECORD(IgnoreSelection), Code("ignS"), kFlag, kSwitch, 0, Block::kCarried, Section::kNone,
     nullptr, "flag carried through scripting, without effect"},
    {RECORD(ApplyToAll), 0, kFlag, kSwitch, 0, Block::kBatch, Section::kNone, nullptr,
     "a run over many pictures with one dialog"},
    {RECORD(ApplyToAllFirst), 0, kFlag, kSwitch, 1, Block::kBatch, Section::kNone, nullptr,
     "the first picture of such a run"},
    {RECORD(BatchMode), 0, kFlag, kSwitch, 0, Block::kBatch, Section::kNone, nullptr,
     "the dialog is part of such a run"},
};

#undef RECORD
#undef SESSION

}  // namespace

std::span<const SettingField> SettingsTable() {
  return kTable;
}

const SettingField* FindSettingByKey(std::uint32_t key) {
  if (key == 0) return nullptr;
  const auto* row = std::ranges::find(kTable, key, &SettingField::key);
  return row == std::end(kTable) ? nullptr : row;
}

const SettingField* FindSetting(std::string_view name) {
  for (const SettingField& field : kTable) {
    if (EqualIgnoringCase(field.name, name)) return &field;
  }
  return nullptr;
}

bool UserMaySet(const SettingField& field) {
  return field.block != Block::kFrame && field.block != Block::kAddresses &&
         field.block != Block::kBatch && field.block != Block::kSnapshot;
}

}  // namespace tarnwick
