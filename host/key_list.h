#pragma once
#include <string>
#include <vector>

#include "host/descriptor.h"

namespace tarnwick::testhost {

// What the module keeps its settings under in the registry.
inline constexpr char kRegistryKey[] = "d9543b0c-3c91-11d4-98bc-00b008042009";

// A line of tests/filter/keys.txt: what has to travel under which key, and by
// which of the four ways. Written down apart from the module's own table.
struct ListedKey {
  int line = 0;       // from 0: makes its value different from others
  std::string key;    // four characters
  std::string type;   // boolean, integer, float, string, percent, enumerated
  std::string field;  // of the settings
  bool scriptWrite = false, scriptRead = false, registryWrite = false, registryRead = false;
};

[[nodiscard]] std::vector<ListedKey> ReadKeyList(const std::string& path);
// The lines of a file.
[[nodiscard]] std::vector<std::string> ReadLines(const std::string& path);

// False for the link flags, which the module keeps for itself, and for addresses.
[[nodiscard]] bool IsInBlock(const ListedKey& key);

// A value that is neither the default nor that of its neighbours.
[[nodiscard]] std::string DistinctText(const ListedKey& key);
// How that value stands in a descriptor.
[[nodiscard]] std::string DistinctDescriptorText(const ListedKey& key);
// What a fresh block holds.
[[nodiscard]] std::string DefaultText(const ListedKey& key);

}  // namespace tarnwick::testhost
