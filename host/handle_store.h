#pragma once
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host_interface/host_types.h"

namespace tarnwick::testhost {

// The host's memory handles, as unkind as a host may be: a block moves each time
// it is locked, what an unlocked one shows is poison, and memory that a block has
// left stays poisoned until the end, so that whoever still writes there is found.
class HandleStore {
 public:
  HandleStore() = default;
  ~HandleStore();
  HandleStore(const HandleStore&) = delete;
  HandleStore& operator=(const HandleStore&) = delete;

  // Null when this request is one that is to fail. New memory is not cleared.
  host::Handle New(std::int32_t bytes);
  void Dispose(host::Handle handle);
  [[nodiscard]] std::int32_t Size(host::Handle handle);
  [[nodiscard]] bool SetSize(host::Handle handle, std::int32_t bytes);
  char* Lock(host::Handle handle);
  void Unlock(host::Handle handle);

  // The host's own look at a block that is not locked.
  [[nodiscard]] std::vector<char>& Contents(host::Handle handle);
  [[nodiscard]] bool Knows(host::Handle handle) const;

  [[nodiscard]] std::size_t Live() const { return blocks_.size(); }
  [[nodiscard]] std::size_t Locked() const;
  // Checks the poison of everything; faults since the last call.
  [[nodiscard]] std::vector<std::string> TakeFaults();

  // Frees what blocks have left, which is poison until then.
  void DropLeft();

  // The `nth` request from now on fails, counting from 1; 0: none.
  void FailNew(int nth) { failNew_ = nth; }
  void FailLock(int nth) { failLock_ = nth; }

 private:
  struct Place {
    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;
  };
  struct Block {
    char* master = nullptr;  // what the handle points at; keep it first
    Place place;
    std::vector<char> contents;  // while it is not locked
    int locks = 0;
  };

  Block* Find(host::Handle handle, const char* action);
  [[nodiscard]] static Place PoisonedPlace(std::size_t bytes);
  void Leave(Block& block);
  void CheckPoison(const Place& place, const char* what);

  std::map<host::Handle, std::unique_ptr<Block>> blocks_;
  std::vector<Place> left_;
  std::vector<std::string> faults_;
  int failNew_ = 0;
  int failLock_ = 0;
};

}  // namespace tarnwick::testhost
