#include "resources/generator/module_properties.h"

#include <initializer_list>

#include "filter/script_keys.h"
#include "resources/generator/resource_ids.h"
#include "settings/settings_table.h"

namespace tarnwick {
namespace {

constexpr std::uint32_t kVendor = FourCharacterCode("8BIM");

struct Property {
  std::uint32_t key;
  ResourceBlock value;
};

ResourceBlock Code(std::uint32_t code) {
  ResourceBlock value;
  value.Code(code);
  return value;
}

ResourceBlock CountedText(std::string_view text) {
  ResourceBlock value;
  value.CountedText(text);
  return value;
}

ResourceBlock ZeroText(std::string_view text) {
  ResourceBlock value;
  value.ZeroText(text);
  return value;
}

ResourceBlock Numbers(std::initializer_list<std::uint32_t> numbers) {
  ResourceBlock value;
  for (const std::uint32_t number : numbers) value.Long(number);
  return value;
}

ResourceBlock Component(std::uint32_t version, std::string_view name) {
  ResourceBlock value;
  value.Long(version);
  value.ZeroText(name);
  return value;
}

// One bit for each mode, the first mode in the highest bit of the first byte.
ResourceBlock ImageModes(std::initializer_list<int> modes) {
  std::uint8_t bytes[2] = {};
  for (const int mode : modes) {
    bytes[mode / 8] = static_cast<std::uint8_t>(bytes[mode / 8] | 0x80 >> mode % 8);
  }
  ResourceBlock value;
  for (const std::uint8_t byte : bytes) value.Byte(byte);
  return value;
}

ResourceBlock Terminology() {
  ResourceBlock value;
  value.Long(0);
  value.Code(kScriptClass);
  value.Code(kScriptEvent);
  value.Word(kDescriptionId);
  value.ZeroText(kModuleIdentifier);
  return value;
}

constexpr std::uint8_t kTakesBlankData = 2;
constexpr std::uint8_t kFiltersLayerMask = 4;
constexpr std::uint8_t kWritesOutsideSelection = 8;

// How a filter wants its pixels, for each case of layer and selection. Ours takes
// them as they are, and where there is a selection it writes beyond it: the washes
// have a side outside.
ResourceBlock FilterCases() {
  constexpr std::uint8_t kAsItIs = 1;
  constexpr std::uint8_t kWhole = kTakesBlankData | kFiltersLayerMask;
  constexpr std::uint8_t kSelected = kWhole | kWritesOutsideSelection;
  const struct {
    std::uint8_t flags;
    const char* name;
  } cases[] = {
      {kWhole, "flat image"},
      {kSelected, "flat image, selection"},
      {kSelected, "floating selection"},
      {kWhole, "editable transparency"},
      {kSelected, "editable transparency, selection"},
      {kWhole, "protected transparency"},
      {kSelected, "protected transparency, selection"},
  };
  ResourceBlock value;
  for (const auto& row : cases) {
    value.Byte(kAsItIs);
    value.Byte(kAsItIs);
    value.Byte(row.flags);
    value.Byte(0);
    value.Remark(row.name);
  }
  return value;
}

enum ImageMode { kRgb = 3, kCmyk = 4, kLab = 9 };

// The host lights up the menu item where this holds: an or, so any picture of
// 8 bits passes, and RGB and CMYK of any depth. The render refuses the others.
constexpr char kEnabledWhen[] = "in (PSHOP_ImageMode, RGBMode,CMYKMode ) ||PSHOP_ImageDepth == 8 ";

constexpr std::uint32_t kLongestSide = 2000000;

std::vector<Property> Properties(Processor processor) {
  const std::uint32_t entryKey =
      processor == Processor::kI686 ? FourCharacterCode("wx86") : FourCharacterCode("8664");
  return {
      {FourCharacterCode("kind"), Code(FourCharacterCode("8BFM"))},
      {FourCharacterCode("name"), CountedText(std::string(kProductName) + "...")},
      {FourCharacterCode("catg"), CountedText(kVendorName)},
      {FourCharacterCode("vers"), Numbers({4U << 16})},
      {FourCharacterCode("cmpt"), Component(0, kProductName)},
      {entryKey, ZeroText("PluginMain")},
      {FourCharacterCode("mode"), ImageModes({kRgb, kCmyk, kLab})},
      {FourCharacterCode("hstm"), Terminology()},
      {FourCharacterCode("enbl"), ZeroText(kEnabledWhen)},
      {FourCharacterCode("ms32"), Numbers({kLongestSide, kLongestSide})},
      {FourCharacterCode("flly"), Numbers({0x80})},
      {FourCharacterCode("fici"), FilterCases()},
  };
}

}  // namespace

ResourceBlock ModuleProperties(Processor processor) {
  std::vector<Property> properties = Properties(processor);
  ResourceBlock block;
  block.Word(1);
  block.Long(0);
  block.Long(static_cast<std::uint32_t>(properties.size()));
  block.Remark("signature, version, number of properties");
  for (Property& property : properties) {
    // Hosts differ over a length without the padding; all take one with it.
    property.value.PadTo(4);
    block.Code(kVendor);
    block.Code(property.key);
    block.Long(0);
    block.Long(static_cast<std::uint32_t>(property.value.Size()));
    block.EndLine();
    block.Append(property.value);
    block.EndLine();
  }
  return block;
}

}  // namespace tarnwick
