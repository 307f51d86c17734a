#include "dialog/host_picker.h"

#include <algorithm>
#include <string_view>

#include "host_interface/host_types.h"

namespace tarnwick {
namespace {

Choice ChooseInHost(host::ColorServicesProc services, COLORREF& color) {
  constexpr std::string_view kPrompt = "Select a Color";
  host::Str255 prompt{};
  prompt[0] = static_cast<std::uint8_t>(kPrompt.size());
  std::copy(kPrompt.begin(), kPrompt.end(), prompt + 1);

  host::ColorServicesInfo info{};
  info.infoSize = static_cast<std::int32_t>(sizeof info);
  info.selector = host::plugIncolorServicesChooseColor;
  info.sourceSpace = info.resultSpace = host::plugIncolorServicesRGBSpace;
  info.selectorParameter.pickerPrompt = &prompt;
  const std::int16_t components[] = {GetRValue(color), GetGValue(color), GetBValue(color), 255};
  std::copy(std::begin(components), std::end(components), info.colorComponents);

  const host::OSErr error = services(&info);
  if (error == host::userCanceledErr) return Choice::kCancelled;
  if (error != host::noErr) return Choice::kUnavailable;
  const auto byteOf = [&](int i) {
    return static_cast<std::uint8_t>(std::clamp<int>(info.colorComponents[i], 0, 255));
  };
  color = RGB(byteOf(0), byteOf(1), byteOf(2));
  return Choice::kChosen;
}

}  // namespace

HostPicker HostPickerOf(host::ColorServicesProc services) {
  if (services == nullptr) return {};
  return [services](COLORREF& color) { return ChooseInHost(services, color); };
}

}  // namespace tarnwick
