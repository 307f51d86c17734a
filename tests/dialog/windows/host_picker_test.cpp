// How the host's own colour picker is asked, by a host that looks at every field.
#include "dialog/host_picker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

struct Asked {
  host::ColorServicesInfo info{};
  std::string prompt;
};
Asked asked;
host::OSErr outcome = host::noErr;
std::vector<std::int16_t> chosen;

host::OSErr TARNWICK_HOST_CALL Services(host::ColorServicesInfo* info) {
  asked.info = *info;
  const auto& prompt = *info->selectorParameter.pickerPrompt;
  asked.prompt.assign(prompt + 1, prompt + 1 + prompt[0]);
  std::copy(chosen.begin(), chosen.end(), info->colorComponents);
  return outcome;
}

TEST(HostPicker, AsksWithTheColourAndTakesTheChosenOne) {
  outcome = host::noErr;
  chosen = {1, 130, 255, 9};
  COLORREF color = 0x00807060;  // red in the low byte
  EXPECT_EQ(HostPickerOf(Services)(color), Choice::kChosen);
  EXPECT_EQ(color, 1U + 130U * 256U + 255U * 65536U);
  EXPECT_EQ(asked.info.infoSize, sizeof(void*) == 4 ? 36 : 56);
  EXPECT_EQ(asked.info.selector, 0);
  EXPECT_EQ(asked.info.sourceSpace, 0);
  EXPECT_EQ(asked.info.resultSpace, 0);
  EXPECT_EQ(asked.prompt, "Select a Color");
  const std::int16_t components[] = {0x60, 0x70, 0x80, 255};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(asked.info.colorComponents[i], components[i]) << i;
}

TEST(HostPicker, KeepsTheColourUnlessOneIsChosen) {
  EXPECT_FALSE(HostPickerOf(nullptr));
  struct Case {
    host::OSErr error;
    Choice choice;
  };
  chosen = {1, 2, 3, 4};
  for (const Case& c :
       {Case{host::userCanceledErr, Choice::kCancelled}, Case{-30100, Choice::kUnavailable}}) {
    outcome = c.error;
    COLORREF color = 0x123456;
    EXPECT_EQ(HostPickerOf(Services)(color), c.choice);
    EXPECT_EQ(color, 0x123456U);
  }
}

}  // namespace
}  // namespace tarnwick
