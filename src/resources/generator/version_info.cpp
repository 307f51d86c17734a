#include "resources/generator/version_info.h"

#include <cstdio>
#include <stdexcept>

#include "environment/folders.h"
#include "resources/generator/resource_ids.h"

namespace tarnwick {

std::string VersionInfo(const std::string& version) {
  unsigned major = 0;
  unsigned minor = 0;
  unsigned patch = 0;
  char rest = 0;
  if (std::sscanf(version.c_str(), "%5u.%5u.%5u%c", &major, &minor, &patch, &rest) != 3 ||
      major > 0xFFFF || minor > 0xFFFF || patch > 0xFFFF) {
    throw std::invalid_argument(version + " is no version of three numbers");
  }
  const std::string numbers =
      std::to_string(major) + ", " + std::to_string(minor) + ", " + std::to_string(patch) + ", 0";
  const auto value = [](const char* name, const std::string& text) {
    return "            VALUE \"" + std::string(name) + "\", \"" + text + "\"\n";
  };
  // File type 2: a library. Language and code page: US English, Unicode.
  return "1 VERSIONINFO\n"
         "FILEVERSION " +
         numbers + "\nPRODUCTVERSION " + numbers +
         "\n"
         "FILEFLAGSMASK 0x3F\nFILEFLAGS 0\nFILEOS 0x40004\nFILETYPE 2\nFILESUBTYPE 0\n"
         "BEGIN\n"
         "    BLOCK \"StringFileInfo\"\n    BEGIN\n"
         "        BLOCK \"040904B0\"\n        BEGIN\n" +
         value("CompanyName", kVendorName) +
         value("FileDescription", std::string(kProductName) + ": ages photographs") +
         value("FileVersion", version) + value("InternalName", kProductName) +
         value("LegalCopyright", "Tarnwick Studio contributors, MIT License") +
         value("OriginalFilename", kModuleFileName) + value("ProductName", kProductName) +
         value("ProductVersion", version) +
         "        END\n    END\n"
         "    BLOCK \"VarFileInfo\"\n    BEGIN\n"
         "        VALUE \"Translation\", 0x409, 1200\n    END\nEND\n";
}

}  // namespace tarnwick
