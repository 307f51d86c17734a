#pragma once
#include "filter/filter_windows.h"

namespace tarnwick {

// The windows of the module.
class ModuleWindows : public FilterWindows {
 public:
  // Goes on as after OK: the settings are those that the host has kept.
  bool ShowMainDialog(FilterGlobals& g) override;
  void ShowAboutBox(FilterGlobals& g) override;
};

}  // namespace tarnwick
