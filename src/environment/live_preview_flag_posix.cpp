#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "environment/live_preview_flag.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

fs::path FlagFile() {
  const char* const configuration = std::getenv("XDG_CONFIG_HOME");
  if (configuration != nullptr && *configuration != '\0') {
    return fs::path(configuration) / "tarnwick-studio" / "picker-live-preview";
  }
  const char* const home = std::getenv("HOME");
  if (home == nullptr || *home == '\0') return {};
  return fs::path(home) / ".config" / "tarnwick-studio" / "picker-live-preview";
}

}  // namespace

bool LoadLivePreviewFlag() {
  char flag = 0;
  std::ifstream file(FlagFile(), std::ios::binary);
  return file.get(flag) && flag == '1';
}

void SaveLivePreviewFlag(bool isOn) {
  const fs::path file = FlagFile();
  if (file.empty()) return;
  std::error_code fault;
  fs::create_directories(file.parent_path(), fault);
  std::ofstream(file, std::ios::binary) << (isOn ? '1' : '0');
}

}  // namespace tarnwick
