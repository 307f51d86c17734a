#pragma once
#include <array>
#include <cstddef>
#include <cstdint>

namespace tarnwick {

// Page memory that outlives a filter invocation, and the module's own stay in
// the host: its addresses travel through the descriptor registry as 32-bit
// integers. A number that comes back from there may be stale, from another
// process or from a run that has long used its block up, so each is looked up in
// one small table that lives in page memory too, and is found again by a module
// that was unloaded and loaded anew. In a 64-bit process the table is also what
// gives the upper half of the address back.

// Takes pages of `bytes` into the table. False when it has no room: the caller
// keeps them then.
[[nodiscard]] bool SaveBlock(void* pages, std::size_t bytes);

// The pages that `token` stands for, and their size; null for a stale number.
struct SavedBlock {
  void* pages = nullptr;
  std::size_t bytes = 0;
};
[[nodiscard]] SavedBlock FindBlock(std::uintptr_t address);
[[nodiscard]] SavedBlock FindBlockByToken(std::int32_t token);

// Takes the pages out of the table; they belong to the caller then.
SavedBlock TakeBlock(std::uintptr_t address);

// Frees all pages of the table but those at the addresses that are still in use. A
// second copy of the module in the same process shares the table, and loses its own.
void DropBlocksExcept(const std::array<std::uintptr_t, 3>& inUse);

// The integer that stands for an address.
[[nodiscard]] std::int32_t TokenOf(std::uintptr_t address);

}  // namespace tarnwick
