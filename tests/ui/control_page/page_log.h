#pragma once
#include <windows.h>

#include <string>

namespace tarnwick::testui {

// What the page's controls tell it, a line each; scenarios read the file.
//
//   command ID CODE LPARAM [VALUE ...]    with the state of a control of our own
//   hscroll WPARAM LPARAM
//   mark                                  all is done that came before F11
class PageLog {
 public:
  explicit PageLog(std::string path) : path_(std::move(path)) {}

  void Command(HWND page, WPARAM wParam, LPARAM lParam) const;
  void Line(const std::string& line) const;

 private:
  std::string path_;
};

}  // namespace tarnwick::testui
