#include "built_module.h"

#include <gtest/gtest.h>
#include <cstdlib>
#include <stdexcept>

namespace tarnwick {
namespace {

std::string Required(const char* variable) {
  const char* const value = std::getenv(variable);
  if (value == nullptr) throw std::runtime_error(std::string(variable) + " is not set");
  return value;
}

}  // namespace

const PeFile& BuiltModule() {
  static const PeFile file = ReadPeFile(Required("TARNWICK_MODULE"));
  return file;
}

bool MeantFor64Bits() {
  return Required("TARNWICK_PROCESSOR") == "x86_64";
}

std::string DescriptionBytes(const std::string& type) {
  std::string bytes;
  int found = 0;
  for (const PeResource& resource : BuiltModule().resources) {
    if (resource.type != type) continue;
    EXPECT_EQ(resource.name, "#16000") << type;
    EXPECT_EQ(resource.language, 1033U) << type;
    bytes = resource.bytes;
    ++found;
  }
  EXPECT_EQ(found, 1) << type;
  return bytes;
}

}  // namespace tarnwick
