#pragma once
#include <string>

#include "textures/texture_alerts.h"

namespace tarnwick {

// What a texture has to say goes into a message box, and what the system or its file
// is to blame for into the platform's log.
class BoxAlerts : public TextureAlerts {
 public:
  // The window that the boxes belong to; may be null.
  explicit BoxAlerts(void* owner) : owner_(owner) {}
  void TextureAlert(const std::string& text) override;
  void TextureFault(const std::string& text) override;

 private:
  void* owner_;
};

}  // namespace tarnwick
