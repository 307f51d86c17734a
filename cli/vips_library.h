#pragma once
#include <string>

namespace tarnwick {

// The picture library, up from construction to destruction. One at a time.
//
// Its own messages are kept from standard error: faults come back through
// VipsFault, and what it only warns of would be noise between our lines.
class VipsLibrary {
 public:
  // `threads` 0 or less: as many as there are processors.
  explicit VipsLibrary(int threads);
  ~VipsLibrary();
  VipsLibrary(const VipsLibrary&) = delete;
  VipsLibrary& operator=(const VipsLibrary&) = delete;
};

// What the library last complained of, in one line and without the names of its
// operations; forgets it. `otherwise` when it said nothing.
[[nodiscard]] std::string VipsFault(const std::string& otherwise);

// True if such a text speaks of memory that could not be had.
[[nodiscard]] bool IsMemoryFault(const std::string& fault);

}  // namespace tarnwick
