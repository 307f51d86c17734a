#pragma once
#include <windows.h>

#include <functional>
#include <string>

#include "textures/thumbnail_picture.h"

namespace tarnwick {

// A larger view of one texture, over the full-size picker.
struct TextureDetail {
  std::string name;     // as it is shown
  std::string setName;  // empty: it is in no set
  // For the picture's place; may be smaller, or without pixels.
  std::function<ThumbnailPicture(ThumbnailSize size)> picture;
};

// Modal over `owner`; true when the texture has been chosen there. May throw what
// `picture` has thrown.
[[nodiscard]] bool ShowTextureDetail(HWND owner, const TextureDetail& detail);

}  // namespace tarnwick
