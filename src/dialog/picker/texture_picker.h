#pragma once
#include <windows.h>

#include <functional>
#include <optional>
#include <string>

#include "engine/effect_layer.h"
#include "textures/texture_catalogue.h"
#include "textures/texture_set_table.h"
#include "textures/thumbnail_picture.h"

namespace tarnwick {

// What the owner of a picker does for it. All may be unset.
struct PickerHooks {
  // Before the first picture, once the size of all is known.
  std::function<void(ThumbnailSize size)> openLive;
  // Turns a texture's grey thumbnail into a picture of the effect and returns its scale.
  std::function<float(ThumbnailPicture& picture)> livePreview;
  // The effect with the texture of this file name, no larger than `size`.
  std::function<ThumbnailPicture(const std::string& name, ThumbnailSize size)> detail;
  // Inside a handler of what was thrown: nothing may be thrown through the system.
  std::function<void()> fail;
};

// A catalogue with what a picker on it needs.
struct TPicker : TextureCatalogue {
  TextureSetTable sets;
  LayerKind kind = LayerKind::kWash;  // what the texture is for
  // In: what the session has. Out: what the user left, kept for good as the picker closes.
  bool livePreview = false;
  bool isAccepted = false;  // how the last one ended
  HWND dialog = nullptr;    // while one is open
  std::string helpFolder;   // ends with a separator
  PickerHooks hooks;
};

// The full-size picker: a modal window of the textures in pages of eight, with filters
// and, if the user wants that, each as the effect it makes on the picture.
//
// What is chosen is in the catalogue afterwards: selectedName, and currentIndex in what is
// filtered; after Cancel both are as they were. A null name leaves what is selected.
// False when it cannot be opened.
bool OpenTexturePicker(const char* selectedName, HWND parent, TPicker* catalogue);

}  // namespace tarnwick
