#include "filter/box_alerts.h"

#include "environment/platform_calls.h"

namespace tarnwick {

void BoxAlerts::TextureAlert(const std::string& text) {
  ShowAlertBox(text, owner_);
}

void BoxAlerts::TextureFault(const std::string& text) {
  WriteComplaint(text);
}

}  // namespace tarnwick
