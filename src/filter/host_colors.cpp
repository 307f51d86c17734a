#include "filter/host_colors.h"

#include <algorithm>

namespace tarnwick {
namespace {

host::ColorServicesInfo ClearedInfo(std::int16_t selector, std::int16_t space,
                                    const std::int16_t* components) {
  host::ColorServicesInfo info{};
  info.infoSize = static_cast<std::int32_t>(sizeof info);
  info.selector = selector;
  info.sourceSpace = space;
  info.resultSpace = host::plugIncolorServicesChosenSpace;
  std::copy_n(components, 4, info.colorComponents);
  return info;
}

// The suite takes rows of four bytes.
std::uint8_t (*ColorsOf(std::uint8_t* pixels))[4] {
  return reinterpret_cast<std::uint8_t(*)[4]>(pixels);
}

}  // namespace

host::OSErr ColorConvert(host::ColorServicesProc services, std::int16_t fromSpace,
                         std::int16_t toSpace, std::int16_t* components) {
  if (services == nullptr) return host::errPlugInHostInsufficient;
  if (components == nullptr) return host::errAEParamMissed;
  host::ColorServicesInfo info =
      ClearedInfo(host::plugIncolorServicesConvertColor, fromSpace, components);
  info.resultSpace = toSpace;
  const host::OSErr error = services(&info);
  if (error == host::noErr) std::copy_n(info.colorComponents, 4, components);
  return error;
}

host::OSErr ColorPick(host::ColorServicesProc services, host::Str255* prompt, std::int16_t& space,
                      std::int16_t* components) {
  if (services == nullptr) return host::errPlugInHostInsufficient;
  if (components == nullptr) return host::errAEParamMissed;
  host::ColorServicesInfo info =
      ClearedInfo(host::plugIncolorServicesChooseColor, space, components);
  info.selectorParameter.pickerPrompt = prompt;
  const host::OSErr error = services(&info);
  if (error == host::noErr) {
    std::copy_n(info.colorComponents, 4, components);
    space = info.resultSpace;
  }
  return error;
}

bool HostColorServices::Convert(ColorChannels& channels, std::int16_t fromSpace,
                                std::int16_t toSpace) {
  return ColorConvert(services_, fromSpace, toSpace, channels.data()) == host::noErr;
}

bool HostRowConverter::RgbToCmyk(std::uint8_t* pixels, int count) {
  return suite_ &&
         suite_->Convert8(host::plugIncolorServicesRGBSpace, host::plugIncolorServicesCMYKSpace,
                          ColorsOf(pixels), static_cast<std::int16_t>(count)) == host::kSPNoError;
}

bool HostRowConverter::CmykToRgb(std::uint8_t* pixels, int count) {
  return suite_ &&
         suite_->Convert8(host::plugIncolorServicesCMYKSpace, host::plugIncolorServicesRGBSpace,
                          ColorsOf(pixels), static_cast<std::int16_t>(count)) == host::kSPNoError;
}

}  // namespace tarnwick
