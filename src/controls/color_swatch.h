#pragma once
#include <array>
#include <functional>

#include "controls/control_record.h"

namespace tarnwick {

// "Contaner Color CPP": shows a colour, and has it chosen anew when a mouse button
// is let go on it. Sends WM_COMMAND once a colour was chosen.
struct ColorSwatch : TContaner {
  std::uint32_t swatchKind = 1;
  COLORREF color = 0;
  std::array<COLORREF, 16> customColors{};  // of the system's dialog
};

LRESULT CALLBACK ColorSwatchProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Who chooses: the host's picker goes first. The dialog says how it is reached.
enum class Choice : std::uint8_t { kChosen, kCancelled, kUnavailable };
using HostPicker = std::function<Choice(COLORREF& color)>;

struct ColorPicking {
  HostPicker host;  // empty: the host offers none
  // Where the system's dialog takes over from a host that fails.
  HWND fallbackOwner = nullptr;
  std::array<COLORREF, 16>* fallbackCustomColors = nullptr;
};
[[nodiscard]] ColorPicking& ColorPickers();

// True when the user has chosen; `color` is the new one then.
[[nodiscard]] bool PickColor(ColorSwatch& swatch, COLORREF& color);

}  // namespace tarnwick
