#include <windows.h>

#include <cstdio>

#include "environment/shared_pages.h"

namespace tarnwick {
namespace {

// A named section keeps its contents as long as somebody holds it open. Whoever
// made it leaves its handle open on purpose, for the life of the process; one
// that finds it there gives its own handle back, and each module its view.
class SharedView {
 public:
  explicit SharedView(std::size_t bytes) {
    char name[64];
    std::snprintf(name, sizeof name, "Local\\TarnwickStudio-%lu", GetCurrentProcessId());
    const HANDLE section = CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                              static_cast<DWORD>(bytes), name);
    if (section == nullptr) return;
    const bool found = GetLastError() == ERROR_ALREADY_EXISTS;
    view_ = MapViewOfFile(section, FILE_MAP_ALL_ACCESS, 0, 0, bytes);
    if (found) CloseHandle(section);
  }
  ~SharedView() {
    if (view_ != nullptr) UnmapViewOfFile(view_);
  }
  SharedView(const SharedView&) = delete;
  SharedView& operator=(const SharedView&) = delete;
  [[nodiscard]] void* Memory() const { return view_; }

 private:
  void* view_ = nullptr;
};

}  // namespace

void* ProcessPages(std::size_t bytes) {
  static const SharedView view(bytes);
  return view.Memory();
}

}  // namespace tarnwick
