#pragma once
#include <windows.h>

#include <string>
#include <vector>

namespace tarnwick {

// A visible window with our control classes at hand, that notes what controls tell
// it. One at a time.
class ControlPage {
 public:
  struct Message {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool operator==(const Message&) const = default;
  };

  ControlPage();
  ~ControlPage();
  ControlPage(const ControlPage&) = delete;
  ControlPage& operator=(const ControlPage&) = delete;

  [[nodiscard]] HWND Window() const { return window_; }
  // A child of any class; as a template would make it.
  HWND Add(const char* className, int id, int x, int y, int width, int height, DWORD style = 0);
  // WM_COMMAND and WM_HSCROLL since the last call, posted ones included.
  std::vector<Message> TakeMessages();
  [[nodiscard]] std::string TextOf(int id) const;
  // What is seen in a child's client area.
  [[nodiscard]] static COLORREF PixelOf(HWND child, int x, int y);

 private:
  HWND window_ = nullptr;
};

// Lets the system paint and deliver what is posted.
void PumpMessages();

// A pointer event at a place of the window's client area.
void Point(HWND window, UINT message, int x, int y, WPARAM buttons = 0);

}  // namespace tarnwick
