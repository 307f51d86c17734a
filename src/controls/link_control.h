#pragma once
#include <windows.h>

#include <cstdint>

namespace tarnwick {

// "ContainerLinkC": a line of text that leads somewhere, underlined in blue on the
// dialog's face. Its caption is the window's text, its font the one that dialogs give
// their controls. With WS_TABSTOP the keys reach it too: Enter or the space bar do what
// a click does. Posts WM_COMMAND with its id to its parent.
struct LinkRecord {
  HWND window = nullptr;
  std::int32_t id = 0;
  std::int32_t width = 0;  // of the client area
  std::int32_t height = 0;
  bool isPressed = false;
  HFONT font = nullptr;        // as it was given; not owned
  HFONT underlined = nullptr;  // made of it

  LinkRecord() = default;
  ~LinkRecord();
  LinkRecord(const LinkRecord&) = delete;
  LinkRecord& operator=(const LinkRecord&) = delete;
};

LRESULT CALLBACK LinkProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace tarnwick
