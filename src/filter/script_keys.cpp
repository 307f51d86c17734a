#include "filter/script_keys.h"

#include <algorithm>
#include <cmath>

namespace tarnwick {
namespace {

using host::FourCC;
using host::OSType;

constexpr std::uint8_t kAll = kScriptWrite | kScriptRead | kRegistryWrite | kRegistryRead;
constexpr std::uint8_t kRegistryOnly = kRegistryWrite | kRegistryRead;

constexpr ScriptKey kKeys[] = {
    {FourCC("ILNL"), kAll},
    {FourCC("NLBs"), kAll},
    {FourCC("NLWs"), kAll},
    {FourCC("NLBk"), kAll},
    {FourCC("NLSf"), kAll},
    {FourCC("WSOn"), kAll},
    {FourCC("W2Ex"), kAll},
    {FourCC("ILNW"), kAll},
    {FourCC("Isd1"), kAll},
    {FourCC("Isd2"), kScriptWrite | kScriptRead | kRegistryRead},
    {FourCC("WFH1"), kAll},
    {FourCC("WFH2"), kAll},
    {FourCC("WFV1"), kAll},
    {FourCC("WFV2"), kAll},
    {FourCC("WIv1"), kAll},
    {FourCC("WIv2"), kScriptWrite | kScriptRead | kRegistryRead},
    {FourCC("WFN1"), kAll},
    {FourCC("WFN2"), kAll},
    {FourCC("STp1"), kAll},
    {FourCC("STp2"), kAll},
    {FourCC("WTp1"), kAll},
    {FourCC("WTp2"), kAll},
    {FourCC("WSt1"), kAll},
    {FourCC("WSt2"), kAll},
    {FourCC("WSc1"), kAll},
    {FourCC("WSc2"), kAll},
    {FourCC("WIt1"), kAll},
    {FourCC("WIt2"), kAll},
    {FourCC("WAg1"), kAll},
    {FourCC("WAg2"), kAll},
    {FourCC("SAg1"), kAll},
    {FourCC("SAg2"), kAll},
    {FourCC("Cov1"), kAll},
    {FourCC("Cov2"), kAll},
    {FourCC("CSc1"), kAll},
    {FourCC("CSc2"), kAll},
    {FourCC("EDs1"), kAll},
    {FourCC("EDs2"), kAll},
    {FourCC("ESf1"), kAll},
    {FourCC("ESf2"), kAll},
    {FourCC("Rnd1"), kAll},
    {FourCC("Rnd2"), kAll},
    {FourCC("BkOn"), kAll},
    {FourCC("BkEn"), kAll},
    {FourCC("ILNB"), kAll},
    {FourCC("ILNS"), kAll},
    {FourCC("BFpH"), kAll},
    {FourCC("BFpV"), kAll},
    {FourCC("BInv"), kAll},
    {FourCC("OW1X"), kAll},
    {FourCC("OW1Y"), kAll},
    {FourCC("OW2X"), kAll},
    {FourCC("OW2Y"), kAll},
    {FourCC("OS1X"), kAll},
    {FourCC("OS2X"), kAll},
    {FourCC("OS1Y"), kAll},
    {FourCC("OS2Y"), kAll},
    {FourCC("OfBY"), kAll},
    {FourCC("OfBX"), kAll},
    {FourCC("BkFN"), kAll},
    {FourCC("BScl"), kAll},
    {FourCC("BAng"), kAll},
    {FourCC("BHLt"), kAll},
    {FourCC("BMdt"), kAll},
    {FourCC("BHue"), kAll},
    {FourCC("BEnh"), kAll},
    {FourCC("BSdw"), kAll},
    {FourCC("BHCl"), kAll},
    {FourCC("BMCl"), kAll},
    {FourCC("BSCl"), kAll},
    {FourCC("SfOn"), kAll},
    {FourCC("SfEn"), kAll},
    {FourCC("SInW"), kAll},
    {FourCC("Sf2E"), kAll},
    {FourCC("SIn1"), kAll},
    {FourCC("SIn2"), kAll},
    {FourCC("SPO1"), kAll},
    {FourCC("SFN1"), kAll},
    {FourCC("SFN2"), kAll},
    {FourCC("SFV1"), kAll},
    {FourCC("SFV2"), kAll},
    {FourCC("SFH1"), kAll},
    {FourCC("SFH2"), kScriptWrite | kScriptRead | kRegistryWrite},
    {FourCC("SDh1"), kAll},
    {FourCC("SDh2"), kAll},
    {FourCC("SSc1"), kAll},
    {FourCC("SSc2"), kAll},
    {FourCC("SHL1"), kAll},
    {FourCC("SMD1"), kAll},
    {FourCC("SBRH"), kAll},
    {FourCC("SfCn"), kAll},
    {FourCC("SHue"), kAll},
    {FourCC("SfIn"), kAll},
    {FourCC("SSw1"), kAll},
    {FourCC("SHC1"), kAll},
    {FourCC("SMC1"), kAll},
    {FourCC("SSC1"), kAll},
    {FourCC("SAp1"), kAll},
    {FourCC("SBt1"), kAll},
    {FourCC("ILkW"), kAll},
    {FourCC("ILkS"), kAll},
    {FourCC("ILkB"), kAll},
    {FourCC("Amnt"), kAll},
    {FourCC("disP"), kScriptWrite | kRegistryWrite | kRegistryRead},
    {FourCC("ignS"), kAll},
    {FourCC("SvE1"), kRegistryOnly},
    {FourCC("SvE2"), kRegistryOnly},
    {FourCC("SbSR"), kRegistryOnly},
};

// The offsets, the wash switch and the selection's flag are read without being
// expected; the last lines are expected and belong to no field.
constexpr OSType kExpected[] = {
    FourCC("ILNL"),
    FourCC("NLBs"),
    FourCC("NLWs"),
    FourCC("NLBk"),
    FourCC("NLSf"),
    FourCC("W2Ex"),
    FourCC("ILNW"),
    FourCC("Isd1"),
    FourCC("Isd2"),
    FourCC("WFH1"),
    FourCC("WFH2"),
    FourCC("WFV1"),
    FourCC("WFV2"),
    FourCC("WIv1"),
    FourCC("WIv2"),
    FourCC("WFN1"),
    FourCC("WFN2"),
    FourCC("STp1"),
    FourCC("STp2"),
    FourCC("WTp1"),
    FourCC("WTp2"),
    FourCC("WSt1"),
    FourCC("WSt2"),
    FourCC("WSc1"),
    FourCC("WSc2"),
    FourCC("WIt1"),
    FourCC("WIt2"),
    FourCC("WAg1"),
    FourCC("WAg2"),
    FourCC("SAg1"),
    FourCC("SAg2"),
    FourCC("Cov1"),
    FourCC("Cov2"),
    FourCC("CSc1"),
    FourCC("CSc2"),
    FourCC("EDs1"),
    FourCC("EDs2"),
    FourCC("ESf1"),
    FourCC("ESf2"),
    FourCC("Rnd1"),
    FourCC("Rnd2"),
    FourCC("BkOn"),
    FourCC("BkEn"),
    FourCC("ILNB"),
    FourCC("ILNS"),
    FourCC("BFpH"),
    FourCC("BFpV"),
    FourCC("BInv"),
    FourCC("BkFN"),
    FourCC("BScl"),
    FourCC("BAng"),
    FourCC("BHLt"),
    FourCC("BMdt"),
    FourCC("BHue"),
    FourCC("BEnh"),
    FourCC("BSdw"),
    FourCC("BHCl"),
    FourCC("BMCl"),
    FourCC("BSCl"),
    FourCC("SfOn"),
    FourCC("SfEn"),
    FourCC("SInW"),
    FourCC("Sf2E"),
    FourCC("SIn1"),
    FourCC("SIn2"),
    FourCC("SPO1"),
    FourCC("SFN1"),
    FourCC("SFN2"),
    FourCC("SFV1"),
    FourCC("SFV2"),
    FourCC("SFH1"),
    FourCC("SFH2"),
    FourCC("SDh1"),
    FourCC("SDh2"),
    FourCC("SSc1"),
    FourCC("SSc2"),
    FourCC("SHL1"),
    FourCC("SMD1"),
    FourCC("SBRH"),
    FourCC("SfCn"),
    FourCC("SHue"),
    FourCC("SfIn"),
    FourCC("SSw1"),
    FourCC("SHC1"),
    FourCC("SMC1"),
    FourCC("SSC1"),
    FourCC("SAp1"),
    FourCC("SBt1"),
    FourCC("ILkW"),
    FourCC("ILkS"),
    FourCC("ILkB"),
    FourCC("Amnt"),
    FourCC("disP"),
    FourCC("SPO2"),
    FourCC("SHL2"),
    FourCC("SMD2"),
    FourCC("SSw2"),
    FourCC("SAp2"),
    FourCC("SBt2"),
    FourCC("SHC2"),
    FourCC("SMC2"),
    FourCC("SSC2"),
    FourCC("SvE1"),
    FourCC("SvE2"),
    FourCC("SbSR"),
    FourCC("SE11"),
    FourCC("SE21"),
    FourCC("SSR1"),
    0,
};

}  // namespace

std::span<const ScriptKey> ScriptKeys() {
  return kKeys;
}

std::span<const OSType> ExpectedKeys() {
  return kExpected;
}

ScriptType ScriptTypeOf(const SettingField& field) {
  switch (field.type) {
    case SettingType::kFlag:
      return ScriptType::kBoolean;
    case SettingType::kFloat:
      return ScriptType::kFloat;
    case SettingType::kText:
    case SettingType::kCategory:
      return ScriptType::kString;
    case SettingType::kShort:
      return ScriptType::kPercent;
    case SettingType::kWord:
      return ScriptType::kEnumerated;
    case SettingType::kAddress:
      return ScriptType::kAddress;
    case SettingType::kByte:
    case SettingType::kInteger:
    case SettingType::kColor:
      break;
  }
  return ScriptType::kInteger;
}

std::optional<std::int16_t> PercentNumber(double percent) {
  if (std::isnan(percent)) return std::nullopt;
  return static_cast<std::int16_t>(std::clamp(percent, -32768.0, 32767.0));
}

OSType DispositionCode(std::uint16_t disposition) {
  switch (disposition) {
    case 0:
      return FourCC("moD0");
    case 2:
      return FourCC("moD2");
    case 3:
      return FourCC("moD3");
    default:
      return FourCC("moD1");
  }
}

}  // namespace tarnwick
