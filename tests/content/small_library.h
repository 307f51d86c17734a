#pragma once
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "textures/wash_file.h"
#include "textures/wash_file_writer.h"

namespace tarnwick::content {

// Every texture of the data folder, reduced, in a folder of its own that goes
// with it: what a test of looks needs, in seconds instead of minutes. Painting
// them small would not do: a pixel is the same piece of material at any size,
// so a small sheet of a burnt rim is nothing but rim.
class SmallLibrary {
 public:
  SmallLibrary() {
    namespace fs = std::filesystem;
    // Two builds may be tested at once.
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    folder_ = fs::path(::testing::TempDir()) / ("tarnwick_small_library_" + std::to_string(now));
    fs::create_directories(folder_);
    std::error_code missing;
    for (const auto& entry : fs::directory_iterator(TARNWICK_TEXTURES, missing)) {
      if (entry.path().extension() == ".twk") AddReduced(entry.path());
    }
    EXPECT_FALSE(missing || fs::is_empty(folder_)) << "no textures: build the target content";
  }
  ~SmallLibrary() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  SmallLibrary(const SmallLibrary&) = delete;
  SmallLibrary& operator=(const SmallLibrary&) = delete;

  [[nodiscard]] std::string Folder() const { return folder_.string(); }

 private:
  static constexpr int kWidth = 256, kHeight = 192;

  // Each sample is the mean of the block that it stands for.
  void AddReduced(const std::filesystem::path& path) const {
    AWashFile file;
    ImagePtr image;
    ASSERT_TRUE(file.Open(path.string()) && file.ReadImage(image)) << path;
    const int across = image->Width() / kWidth, down = image->Height() / kHeight;
    ASSERT_TRUE(across > 0 && down > 0) << path;
    std::vector<std::uint8_t> samples;
    for (int y = 0; y < kHeight; ++y) {
      for (int x = 0; x < kWidth; ++x) {
        int sum = 0;
        for (int row = y * down; row < (y + 1) * down; ++row) {
          const std::uint8_t* const from = image->PeekInterior() + row * image->RowBytes();
          for (int column = x * across; column < (x + 1) * across; ++column) sum += from[column];
        }
        samples.push_back(static_cast<std::uint8_t>(sum / (across * down)));
      }
    }
    const std::string to = (folder_ / path.filename()).string();
    ASSERT_EQ(WriteWashFile(to, {kWidth, kHeight}, samples), WashWriteOutcome::kDone) << to;
  }

  std::filesystem::path folder_;
};

}  // namespace tarnwick::content
