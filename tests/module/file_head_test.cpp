#include <gtest/gtest.h>
#include <algorithm>
#include <set>

#include "built_module.h"

namespace tarnwick {
namespace {

TEST(ModuleFile, IsALibraryForItsProcessorFromWindows7On) {
  const PeFile& file = BuiltModule();
  EXPECT_EQ(file.machine, MeantFor64Bits() ? 0x8664 : 0x014C);
  EXPECT_TRUE(file.characteristics & 0x2000) << "a library";
  EXPECT_EQ(file.characteristics & 0x0001, 0) << "may be loaded at another address";
  EXPECT_TRUE(file.hasRelocations);
  EXPECT_EQ(file.subsystem, 2) << "no console";
  EXPECT_EQ(file.subsystemMajor, 6);
  EXPECT_EQ(file.subsystemMinor, 1);
  EXPECT_TRUE(file.libraryCharacteristics & 0x0040) << "loaded at a random address";
  EXPECT_TRUE(file.libraryCharacteristics & 0x0100) << "no code in data";
  EXPECT_EQ(file.timestamp, 0U) << "another file with each build";
}

TEST(ModuleFile, ExportsTheTwoPlainNamesAlone) {
  EXPECT_EQ(BuiltModule().exports, (std::vector<std::string>{"DissolveProc", "PluginMain"}));
}

TEST(ModuleFile, ImportsOnlyTheSystem) {
  const std::set<std::string> system = {
      "ADVAPI32.DLL", "COMCTL32.DLL", "COMDLG32.DLL", "GDI32.DLL",  "KERNEL32.DLL", "MSIMG32.DLL",
      "MSVCRT.DLL",   "OLE32.DLL",    "SHELL32.DLL",  "USER32.DLL", "WINMM.DLL",    "WS2_32.DLL",
  };
  // Some that Windows 7 has not got: it would refuse the module as a whole.
  const std::set<std::string> newer = {
      "CreateFile2",
      "GetCurrentThreadStackLimits",
      "GetDpiForWindow",
      "GetSystemTimePreciseAsFileTime",
      "GetTempPath2A",
      "GetTempPath2W",
      "SetProcessDpiAwarenessContext",
      "SetThreadDescription",
      "WaitOnAddress",
      "WakeByAddressAll",
      "WakeByAddressSingle",
  };
  ASSERT_FALSE(BuiltModule().imports.empty());
  for (const PeImport& import : BuiltModule().imports) {
    std::string library = import.library;
    std::ranges::transform(library, library.begin(),
                           [](unsigned char c) { return std::toupper(c); });
    EXPECT_TRUE(system.contains(library)) << import.library;
    for (const std::string& function : import.functions) {
      EXPECT_FALSE(newer.contains(function)) << function;
    }
  }
}

TEST(ModuleFile, HasItsResources) {
  std::set<std::string> types;
  for (const PeResource& resource : BuiltModule().resources) types.insert(resource.type);
  // 1, 2, 3: cursors, bitmaps, icons, and 12, 14 their groups; 5: dialogs; 16: the
  // version. Windows asks for types in capitals.
  EXPECT_EQ(types, (std::set<std::string>{"#1", "#12", "#14", "#16", "#2", "#3", "#5", "AETE",
                                          "PIPL", "WAVE"}));
}

}  // namespace
}  // namespace tarnwick
