#include "host/gui_growth.h"

namespace tarnwick::testhost {

void BecomeScreenAware() {}

GuiRoom MeasureGuiRoom() {
  return {};
}

}  // namespace tarnwick::testhost
