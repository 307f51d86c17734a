#pragma once
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>

#include "base/thread_pool.h"
#include "builder/texture_recipe.h"
#include "textures/wash_file_writer.h"

namespace tarnwick::content {

// Every texture of the library in a folder of its own, painted small: what a
// test of looks needs, in a second instead of a minute. The folder goes with it.
class SmallLibrary {
 public:
  SmallLibrary() {
    // Two builds may be tested at once.
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    folder_ = std::filesystem::path(::testing::TempDir()) /
              ("tarnwick_small_library_" + std::to_string(now));
    std::filesystem::create_directories(folder_);
    ThreadPool pool(0);
    for (const TextureRecipe& recipe : AllTextures()) {
      const Sheet sheet{kWidth, kHeight, recipe.seed, &pool};
      const auto samples = ToBytes(sheet, PaintTexture(recipe, kWidth, kHeight, &pool));
      const WashFileHeader header{kWidth, kHeight};
      const std::string path = (folder_ / TextureFileName(recipe)).string();
      EXPECT_EQ(WriteWashFile(path, header, samples), WashWriteOutcome::kDone) << path;
    }
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
  std::filesystem::path folder_;
};

}  // namespace tarnwick::content
