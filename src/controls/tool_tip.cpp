#include "controls/tool_tip.h"

#include <commctrl.h>

#include "controls/control_shared.h"

namespace tarnwick {
namespace {

constexpr LPARAM kWidestTip = 100;
constexpr WPARAM kInformationIcon = 1;

TOOLINFOA ToolOver(HWND window) {
  TOOLINFOA tool{};
  // As it was before members were added to its end: known to all versions.
  tool.cbSize = TTTOOLINFOA_V1_SIZE;
  tool.hwnd = window;
  GetClientRect(window, &tool.rect);
  return tool;
}

}  // namespace

HWND AddToolTip(HWND window, const char* text, const char* title) {
  if (window == nullptr || text == nullptr) return nullptr;
  const HWND tip = CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr,
                                   WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT,
                                   CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, window, nullptr,
                                   SharedControls().instance, nullptr);
  if (tip == nullptr) return nullptr;
  TOOLINFOA tool = ToolOver(window);
  tool.uFlags = TTF_SUBCLASS | TTF_CENTERTIP | TTF_TRANSPARENT;
  tool.lpszText = const_cast<char*>(text);
  SendMessageA(tip, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
  SendMessageA(tip, TTM_SETMAXTIPWIDTH, 0, kWidestTip);
  if (title != nullptr) {
    SendMessageA(tip, TTM_SETTITLEA, kInformationIcon, reinterpret_cast<LPARAM>(title));
  }
  return tip;
}

void FitToolTip(HWND tip, HWND window) {
  if (tip == nullptr) return;
  TOOLINFOA tool = ToolOver(window);
  SendMessageA(tip, TTM_NEWTOOLRECTA, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace tarnwick
