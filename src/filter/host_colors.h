#pragma once
#include <cstdint>

#include "engine/apply_run.h"
#include "filter/filter_globals.h"
#include "filter/host_suites.h"
#include "imaging/color_services.h"

namespace tarnwick {

// Converts four components through the host's colour services, in place.
// errPlugInHostInsufficient without services, errAEParamMissed without
// components.
[[nodiscard]] host::OSErr ColorConvert(host::ColorServicesProc services, std::int16_t fromSpace,
                                       std::int16_t toSpace, std::int16_t* components);

// Lets the user choose a colour; `space` is that of the components and may
// change. `prompt` is a length-prefixed text.
[[nodiscard]] host::OSErr ColorPick(host::ColorServicesProc services, host::Str255* prompt,
                                    std::int16_t& space, std::int16_t* components);

// The engine's view of the host's colour services.
class HostColorServices : public ColorServices {
 public:
  explicit HostColorServices(host::ColorServicesProc services) : services_(services) {}
  bool Convert(ColorChannels& channels, std::int16_t fromSpace, std::int16_t toSpace) override;

 private:
  host::ColorServicesProc services_;
};

// Rows of a CMYK document through the host's colour space suite, which it holds
// as long as it lives.
class HostRowConverter : public RowColorConverter {
 public:
  explicit HostRowConverter(host::SPBasicSuite* broker)
      : suite_(broker, host::kPSColorSpaceSuite, 1) {}

  // False when the host lacks the suite.
  [[nodiscard]] bool IsThere() const { return static_cast<bool>(suite_); }
  bool RgbToCmyk(std::uint8_t* pixels, int count) override;
  bool CmykToRgb(std::uint8_t* pixels, int count) override;

 private:
  ColorSpaceSuite suite_;
};

}  // namespace tarnwick
