#include "filter/filter_globals.h"

namespace tarnwick {

FilterGlobals& Globals() {
  static FilterGlobals globals;
  return globals;
}

}  // namespace tarnwick
