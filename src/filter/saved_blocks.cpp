#include "filter/saved_blocks.h"

#include <algorithm>

#include "base/page_memory.h"
#include "environment/shared_pages.h"

namespace tarnwick {
namespace {

constexpr std::size_t kPlaces = 64;

// All zero when new.
struct Table {
  struct Entry {
    std::uintptr_t address;
    std::uintptr_t bytes;
  };
  Entry entries[kPlaces];
};

Table* TheTable() {
  return static_cast<Table*>(ProcessPages(sizeof(Table)));
}

template <typename Match>
Table::Entry* FindEntry(const Match& match) {
  Table* const table = TheTable();
  if (table == nullptr) return nullptr;
  for (Table::Entry& entry : table->entries) {
    if (match(entry)) return &entry;
  }
  return nullptr;
}

SavedBlock BlockOf(const Table::Entry* entry) {
  if (entry == nullptr) return {};
  // Addresses travel as numbers here.
  auto* const pages = reinterpret_cast<void*>(entry->address);  // NOLINT(performance-no-int-to-ptr)
  return {pages, static_cast<std::size_t>(entry->bytes)};
}

}  // namespace

bool SaveBlock(void* pages, std::size_t bytes) {
  if (pages == nullptr) return false;
  Table::Entry* const entry = FindEntry([](const Table::Entry& e) { return e.address == 0; });
  if (entry == nullptr) return false;
  *entry = {reinterpret_cast<std::uintptr_t>(pages), bytes};
  return true;
}

SavedBlock FindBlock(std::uintptr_t address) {
  if (address == 0) return {};
  return BlockOf(FindEntry([&](const Table::Entry& e) { return e.address == address; }));
}

SavedBlock FindBlockByToken(std::int32_t token) {
  if (token == 0) return {};
  return BlockOf(FindEntry(
      [&](const Table::Entry& e) { return e.address != 0 && TokenOf(e.address) == token; }));
}

SavedBlock TakeBlock(std::uintptr_t address) {
  if (address == 0) return {};
  Table::Entry* const entry =
      FindEntry([&](const Table::Entry& e) { return e.address == address; });
  const SavedBlock block = BlockOf(entry);
  if (entry != nullptr) *entry = {};
  return block;
}

void DropBlocksExcept(const std::array<std::uintptr_t, 3>& inUse) {
  while (Table::Entry* const entry = FindEntry([&](const Table::Entry& e) {
           return e.address != 0 && std::find(inUse.begin(), inUse.end(), e.address) == inUse.end();
         })) {
    const SavedBlock block = BlockOf(entry);
    *entry = {};
    FreePages(block.pages, block.bytes);
  }
}

std::int32_t TokenOf(std::uintptr_t address) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(address));
}

}  // namespace tarnwick
