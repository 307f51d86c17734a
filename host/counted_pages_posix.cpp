#include "host/counted_pages.h"

#include <cstdlib>
#include <map>
#include <mutex>
#include <utility>

#include "base/page_memory.h"

namespace tarnwick {
namespace {

// The module's threads may ask too.
std::mutex guard;
std::map<void*, std::size_t> live;
std::size_t wrongFrees = 0;
int failAt = 0;
bool failOnwards = false;

bool IsToFail() {
  if (failAt == 0) return false;
  if (--failAt > 0) return false;
  if (failOnwards) failAt = 1;
  return true;
}

}  // namespace

void* AllocatePages(std::size_t bytes) {
  if (bytes == 0) return nullptr;
  const std::scoped_lock lock(guard);
  if (IsToFail()) return nullptr;
  void* const pages = std::calloc(bytes, 1);
  if (pages != nullptr) live[pages] = bytes;
  return pages;
}

void FreePages(void* pages, std::size_t bytes) {
  if (pages == nullptr) return;
  const std::scoped_lock lock(guard);
  const auto block = live.find(pages);
  if (block == live.end() || block->second != bytes) {
    ++wrongFrees;
    return;
  }
  live.erase(block);
  std::free(pages);
}

namespace testhost {

void FailPageRequest(int nth, bool onwards) {
  const std::scoped_lock lock(guard);
  failAt = nth;
  failOnwards = onwards;
}

std::vector<void*> LivePages() {
  const std::scoped_lock lock(guard);
  std::vector<void*> pages;
  for (const auto& block : live) pages.push_back(block.first);
  return pages;
}

std::size_t TakeWrongFrees() {
  const std::scoped_lock lock(guard);
  return std::exchange(wrongFrees, 0);
}

}  // namespace testhost
}  // namespace tarnwick
