#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace tarnwick {

struct PeImport {
  std::string library;
  std::vector<std::string> functions;  // those imported by name
};

struct PeResource {
  std::string type;  // a name, or a number with "#" before it
  std::string name;
  std::uint32_t language = 0;
  std::string bytes;
};

// What a Windows library tells of itself, 32 or 64 bits.
struct PeFile {
  std::uint16_t machine = 0;
  std::uint16_t characteristics = 0;
  std::uint32_t timestamp = 0;
  std::uint16_t subsystem = 0;
  std::uint16_t subsystemMajor = 0;
  std::uint16_t subsystemMinor = 0;
  std::uint16_t libraryCharacteristics = 0;
  bool hasRelocations = false;
  std::vector<PeImport> imports;
  std::vector<std::string> exports;
  std::vector<PeResource> resources;
};

// Reads `path`. An exception for a file that is none, or that leads outside itself.
[[nodiscard]] PeFile ReadPeFile(const std::string& path);

}  // namespace tarnwick
