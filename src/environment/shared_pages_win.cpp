#include <windows.h>

#include <cstdio>

#include "environment/shared_pages.h"

namespace tarnwick {

// A named section keeps its contents as long as somebody holds it open. It is
// never closed on purpose: the process does that when it ends.
void* ProcessPages(std::size_t bytes) {
  char name[64];
  std::snprintf(name, sizeof name, "Local\\TarnwickStudio-%lu", GetCurrentProcessId());
  static void* const pages = [&]() -> void* {
    const HANDLE section = CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                              static_cast<DWORD>(bytes), name);
    return section == nullptr ? nullptr : MapViewOfFile(section, FILE_MAP_ALL_ACCESS, 0, 0, bytes);
  }();
  return pages;
}

}  // namespace tarnwick
