#include "host/color_model.h"

#include "host_interface/host_procs.h"

namespace tarnwick::testhost {
namespace {

bool ToRgb(int space, Color& color) {
  switch (space) {
    case host::plugIncolorServicesRGBSpace:
      return true;
    case host::plugIncolorServicesCMYKSpace:
      color = {color[0] * color[3] / 255, color[1] * color[3] / 255, color[2] * color[3] / 255, 0};
      return true;
    case host::plugIncolorServicesGraySpace:
      color = {color[0], color[0], color[0], 0};
      return true;
    default:
      return false;
  }
}

}  // namespace

bool ConvertColor(int fromSpace, int toSpace, Color& color) {
  if (fromSpace == toSpace) return true;
  if (!ToRgb(fromSpace, color)) return false;
  switch (toSpace) {
    case host::plugIncolorServicesRGBSpace:
      return true;
    case host::plugIncolorServicesCMYKSpace:
      color[3] = 255;
      return true;
    case host::plugIncolorServicesGraySpace:
      color = {(77 * color[0] + 151 * color[1] + 28 * color[2]) / 256, 0, 0, 0};
      return true;
    default:
      return false;
  }
}

}  // namespace tarnwick::testhost
