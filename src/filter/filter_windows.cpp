#include "filter/filter_windows.h"

namespace tarnwick {
namespace {

FilterWindows*& Windows() {
  static FilterWindows* windows = nullptr;
  return windows;
}

}  // namespace

void SetFilterWindows(FilterWindows* windows) {
  Windows() = windows;
}

FilterWindows* TheFilterWindows() {
  return Windows();
}

}  // namespace tarnwick
