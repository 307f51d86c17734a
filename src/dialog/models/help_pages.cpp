#include "dialog/models/help_pages.h"

namespace tarnwick {

const char* HelpPageOf(int code) {
  switch (code) {
    case kHelpFirstTab:
      return "basic.html";
    case kHelpFirstTab + 1:
      return "wash.html";
    case kHelpFirstTab + 2:
      return "surface.html";
    case kHelpFirstTab + 3:
      return "background.html";
    case kHelpPicker:
      return "texture_picker.html";
    default:
      return "index.html";
  }
}

}  // namespace tarnwick
