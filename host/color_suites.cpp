#include <string>

#include "host/color_model.h"
#include "host/host_procs.h"
#include "host/test_host.h"

namespace tarnwick::testhost {
namespace {

using host::SPErr;

// Where the first component of a space lies among four bytes.
int FirstComponent(int space) {
  if (space == host::plugIncolorServicesCMYKSpace) return 0;
  return space == host::plugIncolorServicesGraySpace ? 3 : 1;
}

SPErr TARNWICK_HOST_CALL Convert8(std::int16_t fromSpace, std::int16_t toSpace,
                                  std::uint8_t (*colors)[4], std::int16_t count) {
  if (count < 0) {
    NoteFault("a negative number of colours");
    return host::kSPBadParameterError;
  }
  for (int i = 0; i < count; ++i) {
    Color color{};
    const int from = FirstComponent(fromSpace);
    for (int c = from; c < 4; ++c) color[static_cast<std::size_t>(c - from)] = colors[i][c];
    if (!ConvertColor(fromSpace, toSpace, color)) return host::kSPBadParameterError;
    const int to = FirstComponent(toSpace);
    // What is not used comes back as something else than it went in.
    for (int c = 0; c < to; ++c) colors[i][c] = 0;
    for (int c = to; c < 4; ++c) {
      colors[i][c] = static_cast<std::uint8_t>(color[static_cast<std::size_t>(c - to)]);
    }
  }
  return host::kSPNoError;
}

host::OSErr ChooseColor(host::ColorServicesInfo& info) {
  const host::Str255* const prompt = info.selectorParameter.pickerPrompt;
  if (prompt == nullptr || info.sourceSpace != host::plugIncolorServicesRGBSpace ||
      info.resultSpace != host::plugIncolorServicesRGBSpace) {
    NoteFault("the colour picker was asked wrongly");
    return host::paramErr;
  }
  TestHost& host = TheHost();
  std::string asked(reinterpret_cast<const char*>(*prompt + 1), (*prompt)[0]);
  for (int i = 0; i < 3; ++i) asked += ' ' + std::to_string(info.colorComponents[i]);
  host.log.pickers.push_back(asked);
  // Nobody sits before this host, unless the scenario has told what he does.
  PickerAnswer answer;
  if (!host.pickerAnswers.empty()) {
    answer = host.pickerAnswers.front();
    host.pickerAnswers.pop_front();
  }
  if (answer.error != host::noErr) return answer.error;
  for (std::size_t i = 0; i < 3; ++i) {
    info.colorComponents[i] = static_cast<std::int16_t>(answer.color[i]);
  }
  return host::noErr;
}

}  // namespace

const void* ColorSpaceTable() {
  static const host::PSColorSpaceSuite table = [] {
    host::PSColorSpaceSuite suite{};
    suite.Convert8 = Convert8;
    return suite;
  }();
  return &table;
}

host::OSErr TARNWICK_HOST_CALL ServeColors(host::ColorServicesInfo* info) {
  if (info->infoSize != static_cast<std::int32_t>(sizeof *info) ||
      info->reservedSourceSpaceInfo != nullptr || info->reservedResultSpaceInfo != nullptr ||
      info->reserved != nullptr) {
    NoteFault("the colour services were asked wrongly");
    return host::paramErr;
  }
  if (info->selector == host::plugIncolorServicesChooseColor) return ChooseColor(*info);
  if (info->selector != host::plugIncolorServicesConvertColor) return host::paramErr;
  Color color{};
  for (std::size_t i = 0; i < 4; ++i) color[i] = info->colorComponents[i];
  if (!ConvertColor(info->sourceSpace, info->resultSpace, color)) return host::paramErr;
  for (std::size_t i = 0; i < 4; ++i) {
    info->colorComponents[i] = static_cast<std::int16_t>(color[i]);
  }
  return host::noErr;
}

}  // namespace tarnwick::testhost
