#pragma once
#include "filter/filter_windows.h"

namespace tarnwick {

// The windows of the module.
class ModuleWindows : public FilterWindows {
 public:
  bool ShowMainDialog(FilterGlobals& g) override;
  void ShowAboutBox(FilterGlobals& g) override;
};

}  // namespace tarnwick
