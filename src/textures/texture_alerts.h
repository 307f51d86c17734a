#pragma once
#include <string>

namespace tarnwick {

// Told when a texture that an enabled effect needs cannot be used; the render
// goes on with a plain white stand-in. `text` is complete, with the path in it,
// ready for a message box or a line on stderr. Called on the render's thread.
class TextureAlerts {
 public:
  virtual ~TextureAlerts() = default;
  virtual void TextureAlert(const std::string& text) = 0;
  // The reader's own complaint, with the system's reason, for whoever wants to
  // know the cause; comes before the alert, and for disabled effects too.
  virtual void TextureFault(const std::string& text) { (void)text; }
};

}  // namespace tarnwick
