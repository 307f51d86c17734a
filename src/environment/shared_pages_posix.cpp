#include "base/page_memory.h"
#include "environment/shared_pages.h"

namespace tarnwick {

// Nothing unloads this code here.
void* ProcessPages(std::size_t bytes) {
  static void* const pages = AllocatePages(bytes);
  return pages;
}

}  // namespace tarnwick
