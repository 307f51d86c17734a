#include <windows.h>

#include "base/page_memory.h"

namespace tarnwick {

void* AllocatePages(std::size_t bytes) {
  if (bytes == 0) return nullptr;
  return VirtualAlloc(nullptr, bytes, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
}

void FreePages(void* pages, std::size_t) {
  if (pages != nullptr) VirtualFree(pages, 0, MEM_RELEASE);
}

}  // namespace tarnwick
