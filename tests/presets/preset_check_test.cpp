#include "presets/preset_check.h"

#include <gtest/gtest.h>

#include <utility>

#include "presets/preset_samples.h"
#include "presets/preset_writer.h"
#include "settings/settings_changes.h"

namespace tarnwick {
namespace {

using namespace std::string_literals;
using Kind = PresetFaultKind;
using Faults = std::vector<std::pair<int, Kind>>;

Faults FaultsOf(const std::string& bytes) {
  Faults faults;
  for (const PresetFault& fault : CheckPreset(bytes).faults) {
    faults.emplace_back(fault.line, fault.kind);
    EXPECT_NE(fault.text, "");
  }
  return faults;
}

// Each body begins in the second line of its file.
const struct {
  const char* name;
  std::string body;
  Faults faults;
} kBodies[] = {
    {"fine", "Version 2;\n;x\n\n  \n1cSW 200 ;c\nrgtC Red\nlCiH 0\n1pAS -5.25 ;a\n", {}},
    {"fine with CR and LF", "Version 1;\r\n1cSW 200 \t;c\r\n1NFW Tin.twk\r\n", {}},
    {"unknown key", "1cSW 1\nXXXX 1\nsbln 1\n", {{3, Kind::kUnknownKey}, {4, Kind::kUnknownKey}}},
    {"a field without a line", "X1WO 5\n", {{2, Kind::kUnknownKey}}},
    {"too short for a key", "\nabc\n", {{3, Kind::kNoKey}}},
    {"version", "Version 3;\nVersion\n", {{2, Kind::kUnknownVersion}, {3, Kind::kUnknownVersion}}},
    {"not a number",
     "1cSW x\n1cSW 1.5\n1cSW 9999999999\n1pAS 1,5\n1cSW\nlCiH #fff\n",
     {{2, Kind::kNotANumber},
      {3, Kind::kNotANumber},
      {4, Kind::kNotANumber},
      {5, Kind::kNotANumber},
      {6, Kind::kNotANumber},
      {7, Kind::kNotANumber}}},
    {"range",
     "1cSW 201\nsBLN 2\n1gAW 45\nlCdS 16777216\n1tSW -1\n1pTW 3\n2pTW 4\n",
     {{2, Kind::kOutOfRange},
      {3, Kind::kOutOfRange},
      {4, Kind::kOutOfRange},
      {5, Kind::kOutOfRange},
      {6, Kind::kOutOfRange},
      {8, Kind::kOutOfRange}}},
    {"coverage in version 1",
     "1voC 101\nVersion 1;\n1voC 200\n2voC 201\nVersion 2;\n1voC 200\n",
     {{2, Kind::kOutOfRange}, {5, Kind::kOutOfRange}, {7, Kind::kOutOfRange}}},
    {"long name",
     "1NFW " + std::string(127, 'n') + "\n1NFW " + std::string(128, 'n') + '\n',
     {{3, Kind::kNameTooLong}}},
    {"accent", "1NFW Caf\xE9.twk\n1cSW 1\n", {{2, Kind::kBrokenLine}, {2, Kind::kUnknownKey}}},
    {"control bytes", "1cSW 1\0\n1cSW 1\x01\n"s, {{2, Kind::kBrokenLine}, {3, Kind::kBrokenLine}}},
    {"no end", "1cSW 1\n1cSW 1", {{3, Kind::kUnendedLine}}},
};

TEST(PresetCheck, Bodies) {
  for (const auto& c : kBodies) {
    EXPECT_EQ(FaultsOf("TarnwickStudi Press Preset;\n" + c.body), c.faults) << c.name;
  }
}

TEST(PresetCheck, Headers) {
  EXPECT_EQ(FaultsOf("1cSW 1\nxxxx\n"), (Faults{{1, Kind::kNoHeader}}));
  EXPECT_EQ(FaultsOf(""), (Faults{{1, Kind::kNoHeader}}));
}

TEST(PresetCheck, DefaultsHaveNoFaults) {
  SettingsPair pair = DefaultSettings();
  pair.settings.SecondWashExists = pair.settings.SecondSurfaceExists = 1;
  for (const PresetKind kind : kPresetKinds) {
    EXPECT_EQ(FaultsOf(PresetText(kind, pair.settings, pair.session)), Faults());
  }
}

TEST(PresetCheck, Textures) {
  const PresetReport report = CheckPreset(
      "TarnwickStudi Press Preset;\n1NFW Old Tin.twk ;n\nNFkB No_Texture.twk\n2NFS b.twk\n");
  ASSERT_EQ(report.textures.size(), 2u);
  EXPECT_EQ(report.textures[0].name, "Old Tin.twk");
  EXPECT_EQ(report.textures[0].line, 2);
  EXPECT_EQ(report.textures[1].name, "b.twk");
  EXPECT_EQ(report.textures[1].line, 4);
}

}  // namespace
}  // namespace tarnwick
