#include <sys/mman.h>

#include "base/page_memory.h"

namespace tarnwick {

void* AllocatePages(std::size_t bytes) {
  if (bytes == 0) return nullptr;
  void* const pages =
      mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (pages == MAP_FAILED) return nullptr;
  // Most blocks are whole pictures; large pages save most of the faults.
  (void)madvise(pages, bytes, MADV_HUGEPAGE);
  return pages;
}

void FreePages(void* pages, std::size_t bytes) {
  if (pages != nullptr) munmap(pages, bytes);
}

}  // namespace tarnwick
