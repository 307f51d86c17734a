#include "filter/image_mode.h"

#include "environment/platform_calls.h"

namespace tarnwick {

bool CheckImageMode(FilterGlobals& g) {
  const std::int16_t mode = g.gFilterRecord->imageMode;
  if (mode == host::plugInModeRGBColor || mode == host::plugInModeRGB48 ||
      mode == host::plugInModeCMYKColor || mode == host::plugInModeCMYK64) {
    return true;
  }
  *g.gResult = host::userCanceledErr;
  ShowWarningBox("This Mode is Not Supported by the Plug-in");
  return false;
}

}  // namespace tarnwick
