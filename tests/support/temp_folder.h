#pragma once
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include "support/test_random.h"

namespace tarnwick::testing {

// A folder of a test's own, gone with it.
class TempFolder {
 public:
  TempFolder() {
    namespace fs = std::filesystem;
    for (int i = 0;; ++i) {
      path_ = fs::temp_directory_path() / ("tarnwick-core-" + std::to_string(i));
      std::error_code error;
      if (fs::create_directory(path_, error)) return;
      if (i > 10000) throw std::runtime_error("no folder for test files");
    }
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  [[nodiscard]] std::string Path() const { return path_.string(); }
  // Writes a file and returns its path.
  std::string Put(const std::string& name, const Bytes& bytes) const {
    const std::string path = (path_ / name).string();
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    return path;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace tarnwick::testing
