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
};

}  // namespace tarnwick
