#pragma once
#include <windows.h>

#include <optional>

#include "dialog/models/texture_matches.h"
#include "engine/effect_layer.h"

namespace tarnwick {

// Asks whether effects with the same texture are to be linked, and whose settings they
// take. Nothing when the user says no, or there is no such dialog.
[[nodiscard]] std::optional<LayerKind> AskForLink(HINSTANCE instance, HWND owner, LayerKind own,
                                                  const TextureMatches& matches);

}  // namespace tarnwick
