#include "resources/generator/terminology.h"

#include <cstring>
#include <iterator>
#include <stdexcept>

#include "resources/generator/resource_ids.h"
#include "settings/settings_table.h"

namespace tarnwick {
namespace {

constexpr std::uint32_t kNumber = FourCharacterCode("long");
constexpr std::uint32_t kText = FourCharacterCode("TEXT");
constexpr std::uint32_t kDouble = FourCharacterCode("doub");

struct Parameter {
  char key[5];
  const char* label = nullptr;  // null: the comment of the setting in a preset
  std::uint32_t type = kNumber;
};

// In the order in which hosts list them. Second wash, second surface and offsets
// have no word: they travel in recorded steps all the same. The four of the colour
// presets, twice, are only declared: nothing is ever stored under them.
constexpr Parameter kParameters[] = {
    {"NLBs"},
    {"WSOn"},
    {"NLWs"},
    {"WTp1"},
    {"WSt1"},
    {"WFN1"},
    {"WSc1"},
    {"WIt1"},
    {"WFH1"},
    {"WFV1"},
    {"WIv1"},
    {"Isd1"},
    {"WAg1"},
    {"Cov1"},
    {"CSc1"},
    {"EDs1"},
    {"ESf1"},
    {"Rnd1"},
    {"W2Ex"},
    {"Ctgr", "Preset Category", kText},
    {"HiCl", "Hightlight Color"},
    {"MdCl", "Midtone Color"},
    {"SdCl", "Shadow Color"},
    {"Ctgr", "Preset Category", kText},
    {"HiCl", "Hightlight Color"},
    {"MdCl", "Midtone Color"},
    {"SdCl", "Shadow Color"},
    {"SfOn"},
    {"SFV1"},
    {"SFH1"},
    {"SAg1"},
    {"SFN1"},
    {"SfEn"},
    {"SInW"},
    {"SDh1"},
    {"SSc1"},
    {"SIn1"},
    {"SPO1"},
    {"STp1"},
    {"SBRH"},
    {"SfCn"},
    {"SHue"},
    {"SfIn"},
    {"SMD1"},
    {"SHC1"},
    {"SMC1"},
    {"SSC1"},
    {"SAp1"},
    {"SBt1"},
    {"Sf2E"},
    {"BkOn"},
    {"BkFN"},
    {"NLSf"},
    {"NLBk"},
    {"BkEn"},
    {"BFpH"},
    {"BFpV"},
    {"BAng"},
    {"BInv"},
    {"BScl"},
    {"BHLt"},
    {"BMdt"},
    {"BSdw"},
    {"BHue"},
    {"BEnh"},
    {"BHCl"},
    {"BMCl"},
    {"BSCl"},
};

// Switches are declared as numbers, too.
std::uint32_t TypeOf(const SettingField& field) {
  switch (field.type) {
    case SettingType::kText:
      return kText;
    case SettingType::kFloat:
      return kDouble;
    default:
      return kNumber;
  }
}

// A preset's comment without its mark. Odd, and kept: the two of the light are
// shown with it.
const char* LabelOf(const SettingField& field) {
  if (field.presetComment == nullptr) {
    throw std::logic_error(std::string(field.name) + " has no comment to be its label");
  }
  return field.presetComment + (field.type == SettingType::kFloat ? 0 : std::strlen(";"));
}

Parameter Completed(Parameter row) {
  if (row.label != nullptr) return row;
  const SettingField* const field = FindSettingByKey(FourCharacterCode(row.key));
  if (field == nullptr) throw std::logic_error(std::string(row.key) + " is the key of no setting");
  row.label = LabelOf(*field);
  row.type = TypeOf(*field);
  return row;
}

void WriteEvent(ResourceBlock& block) {
  constexpr std::uint16_t kDirectFlags = 0xB000;
  block.CountedText(kProductName);
  block.CountedText("dissolve example filter plug-in");
  block.Code(kScriptClass);
  block.Code(kScriptEvent);
  block.Remark("event");
  // No descriptions here: some hosts take these codes for texts that end where
  // an empty description's count, a zero, stands.
  block.Code(FourCharacterCode("null"));
  block.CountedText("");
  block.Word(0);
  block.Remark("reply");
  block.Code(FourCharacterCode("#ImR"));
  block.CountedText("");
  block.Word(kDirectFlags);
  block.Remark("direct parameter");
  block.Word(static_cast<std::uint16_t>(std::size(kParameters)));
  block.Remark("number of parameters");
  for (const Parameter& row : kParameters) {
    const Parameter parameter = Completed(row);
    block.CountedText(parameter.label);
    block.Code(FourCharacterCode(parameter.key));
    block.Code(parameter.type);
    block.CountedText(" ");
    block.Word(0);
    block.EndLine();
  }
  block.Word(0);
  block.Word(0);
  block.Word(0);
  block.Remark("classes, comparison operators, enumerations");
}

}  // namespace

ResourceBlock ScriptTerminology() {
  constexpr std::uint16_t kEnglish = 1;
  constexpr std::uint16_t kRomanScript = 0;
  ResourceBlock block;
  block.Word(1);
  block.Byte(1);
  block.Byte(0);
  block.Word(kEnglish);
  block.Word(kRomanScript);
  block.Remark("signature, version, language, script");
  block.Word(1);
  block.CountedText(kVendorName);
  block.CountedText("Adobe example plug-ins");
  block.Code(kScriptClass);
  block.Word(1);
  block.Word(1);
  block.Word(1);
  block.Remark("one suite: level, version, number of events");
  WriteEvent(block);
  return block;
}

}  // namespace tarnwick
