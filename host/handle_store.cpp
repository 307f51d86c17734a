#include "host/handle_store.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "host/memory_poison.h"

namespace tarnwick::testhost {
namespace {

// What a module finds that does not initialise its new block.
constexpr char kNewMemory = static_cast<char>(0xCD);

// Counts down to the request that is to fail.
bool IsToFail(int& countdown) {
  return countdown > 0 && --countdown == 0;
}

}  // namespace

HandleStore::~HandleStore() {
  DropLeft();
  for (auto& [handle, block] : blocks_) UnpoisonMemory(block->place.bytes.get(), block->place.size);
}

HandleStore::Place HandleStore::PoisonedPlace(std::size_t bytes) {
  Place place{std::make_unique<char[]>(std::max<std::size_t>(bytes, 1)), bytes};
  PoisonMemory(place.bytes.get(), place.size);
  return place;
}

HandleStore::Block* HandleStore::Find(host::Handle handle, const char* action) {
  const auto found = blocks_.find(handle);
  if (found != blocks_.end()) return found->second.get();
  faults_.push_back(std::string(action) + " of a handle that does not exist");
  return nullptr;
}

void HandleStore::CheckPoison(const Place& place, const char* what) {
  UnpoisonMemory(place.bytes.get(), place.size);
  const bool whole = std::all_of(place.bytes.get(), place.bytes.get() + place.size,
                                 [](char c) { return c == static_cast<char>(kPoison); });
  PoisonMemory(place.bytes.get(), place.size);
  if (!whole) faults_.emplace_back(what);
}

// The block goes elsewhere; where it lay stays poisoned.
void HandleStore::Leave(Block& block) {
  PoisonMemory(block.place.bytes.get(), block.place.size);
  left_.push_back(std::move(block.place));
}

host::Handle HandleStore::New(std::int32_t bytes) {
  if (IsToFail(failNew_) || bytes < 0) return nullptr;
  auto block = std::make_unique<Block>();
  block->contents.assign(static_cast<std::size_t>(bytes), kNewMemory);
  block->place = PoisonedPlace(block->contents.size());
  block->master = block->place.bytes.get();
  const host::Handle handle = &block->master;
  blocks_[handle] = std::move(block);
  return handle;
}

void HandleStore::Dispose(host::Handle handle) {
  Block* const block = Find(handle, "disposal");
  if (block == nullptr) return;
  if (block->locks == 0) CheckPoison(block->place, "a block was written while it was not locked");
  Leave(*block);
  blocks_.erase(handle);
}

std::int32_t HandleStore::Size(host::Handle handle) {
  const Block* const block = Find(handle, "size");
  if (block == nullptr) return 0;
  return static_cast<std::int32_t>(block->locks == 0 ? block->contents.size() : block->place.size);
}

bool HandleStore::SetSize(host::Handle handle, std::int32_t bytes) {
  Block* const block = Find(handle, "new size");
  if (block == nullptr || bytes < 0 || block->locks != 0) return false;
  block->contents.resize(static_cast<std::size_t>(bytes), kNewMemory);
  Leave(*block);
  block->place = PoisonedPlace(block->contents.size());
  block->master = block->place.bytes.get();
  return true;
}

char* HandleStore::Lock(host::Handle handle) {
  Block* const block = Find(handle, "locking");
  if (block == nullptr || IsToFail(failLock_)) return nullptr;
  if (block->locks++ > 0) return block->master;
  CheckPoison(block->place, "a block was written while it was not locked");
  Leave(*block);
  block->place = PoisonedPlace(block->contents.size());
  UnpoisonMemory(block->place.bytes.get(), block->place.size);
  std::copy(block->contents.begin(), block->contents.end(), block->place.bytes.get());
  block->master = block->place.bytes.get();
  return block->master;
}

// Unlocking what is not locked is allowed: modules do it on their way out.
void HandleStore::Unlock(host::Handle handle) {
  Block* const block = Find(handle, "unlocking");
  if (block == nullptr || block->locks == 0 || --block->locks > 0) return;
  block->contents.assign(block->master, block->master + block->place.size);
  PoisonMemory(block->place.bytes.get(), block->place.size);
}

std::vector<char>& HandleStore::Contents(host::Handle handle) {
  const auto found = blocks_.find(handle);
  if (found == blocks_.end()) throw std::runtime_error("there is no such block");
  if (found->second->locks != 0) throw std::runtime_error("the block is locked");
  return found->second->contents;
}

bool HandleStore::Knows(host::Handle handle) const {
  return blocks_.contains(handle);
}

std::size_t HandleStore::Locked() const {
  return static_cast<std::size_t>(std::count_if(
      blocks_.begin(), blocks_.end(), [](const auto& entry) { return entry.second->locks != 0; }));
}

void HandleStore::DropLeft() {
  for (Place& place : left_) UnpoisonMemory(place.bytes.get(), place.size);
  left_.clear();
}

std::vector<std::string> HandleStore::TakeFaults() {
  for (const Place& place : left_) CheckPoison(place, "memory that a block has left was written");
  for (const auto& [handle, block] : blocks_) {
    if (block->locks == 0) CheckPoison(block->place, "a block was written while it was not locked");
  }
  return std::exchange(faults_, {});
}

}  // namespace tarnwick::testhost
