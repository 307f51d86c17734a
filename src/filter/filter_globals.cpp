#include "filter/filter_globals.h"

namespace tarnwick {

FilterGlobals& Globals() {
  static FilterGlobals globals;
  return globals;
}

PresetSession& PresetsOf(FilterGlobals& g) {
  // Not there from the start: it refers to the session beside it, wherever that lies.
  if (g.presets == nullptr) g.presets = std::make_unique<PresetSession>(g.session);
  return *g.presets;
}

}  // namespace tarnwick
