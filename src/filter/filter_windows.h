#pragma once
#include "filter/filter_globals.h"

namespace tarnwick {

// What the filter shows. The dialogs implement it; without an implementation a
// run goes on as if the user had pressed OK, and there is nothing about it.
class FilterWindows {
 public:
  virtual ~FilterWindows() = default;
  // True when the dialog ended with OK. Works on the settings themselves; its
  // Cancel puts them back.
  virtual bool ShowMainDialog(FilterGlobals& g) = 0;
  virtual void ShowAboutBox(FilterGlobals& g) = 0;
};

// Null takes it away again. Does not own it.
void SetFilterWindows(FilterWindows* windows);
[[nodiscard]] FilterWindows* TheFilterWindows();

}  // namespace tarnwick
