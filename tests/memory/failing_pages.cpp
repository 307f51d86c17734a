#include "memory/failing_pages.h"

#include <cstdlib>
#include <map>

#include "base/page_memory.h"

namespace tarnwick {
namespace {

// Runs are on one thread here.
std::map<void*, std::size_t> live;
std::size_t wrongFrees = 0;
int failAt = 0;
bool failAfter = false;
int asked = 0;

}  // namespace

void* AllocatePages(std::size_t bytes) {
  if (bytes == 0) return nullptr;
  ++asked;
  if (failAt != 0 && (asked == failAt || (failAfter && asked > failAt))) return nullptr;
  void* const pages = std::calloc(bytes, 1);
  if (pages != nullptr) live[pages] = bytes;
  return pages;
}

void FreePages(void* pages, std::size_t bytes) {
  if (pages == nullptr) return;
  const auto block = live.find(pages);
  if (block == live.end() || block->second != bytes) {
    ++wrongFrees;
    return;
  }
  live.erase(block);
  std::free(pages);
}

namespace testing {

void FailAllocation(int nth, bool andAllAfter) {
  failAt = nth;
  failAfter = andAllAfter;
  asked = 0;
}

int AllocationsAskedFor() {
  return asked;
}

std::size_t FaultyBlocks() {
  return live.size() + wrongFrees;
}

}  // namespace testing
}  // namespace tarnwick
