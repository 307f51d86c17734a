#pragma once

namespace tarnwick {

// Whether the full-size picker shows the effect in its cells. It is the user's,
// not a picture's: Windows keeps it in the registry, below HKEY_CURRENT_USER
// SOFTWARE\TWKstud\Environment as the byte PickerLivePreview; other systems in a
// file of the user's configuration folder.

// False when nothing, or nothing that can be read, is kept.
[[nodiscard]] bool LoadLivePreviewFlag();

// Does nothing if that is not possible.
void SaveLivePreviewFlag(bool isOn);

}  // namespace tarnwick
