#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "builder/texture_recipe.h"
#include "builder/texture_sets.h"
#include "textures/texture_effects.h"

namespace tarnwick::content {
namespace {

using Bytes = std::vector<std::uint8_t>;

bool IsPlain(const TextureRecipe& recipe) {
  return recipe.name == "Solid" || recipe.name == "No_Texture";
}

Bytes Render(const TextureRecipe& recipe, int width, int height, ThreadPool* pool) {
  return ToBytes({width, height, recipe.seed, pool}, PaintTexture(recipe, width, height, pool));
}

TEST(Recipes, TheNamedDefaultsAreThere) {
  std::set<std::string_view> names;
  for (const TextureRecipe& recipe : AllTextures()) {
    EXPECT_TRUE(names.insert(recipe.name).second) << recipe.name << " twice";
  }
  for (const char* name : {"Scratched", "General_Store", "Rusted", "Battleship", "Fiberglass",
                           "Solid", "No_Texture"}) {
    EXPECT_TRUE(names.contains(name)) << name;
  }
  EXPECT_GE(names.size(), 12U);
}

TEST(Recipes, AreFiledProperly) {
  std::set<std::uint32_t> seeds;
  for (const TextureRecipe& recipe : AllTextures()) {
    SCOPED_TRACE(recipe.name);
    EXPECT_LT(TextureFileName(recipe).size(), 32U) << "the catalogue cuts names at 31";
    EXPECT_TRUE(std::all_of(recipe.name.begin(), recipe.name.end(), [](unsigned char c) {
      return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
    }));
    EXPECT_FALSE(TextureSetNameOf(recipe.set).empty());
    for (std::string_view effect : recipe.effects) EXPECT_GT(TextureEffectBit(effect), 0) << effect;
    if (IsPlain(recipe)) continue;
    EXPECT_NE(EffectMask(recipe), 0U);
    EXPECT_GE(recipe.width, 2048);
    EXPECT_GE(recipe.height, 1536);
    EXPECT_TRUE(seeds.insert(recipe.seed).second) << "a seed of its own";
  }
}

// The split of rows differs with every pool and every run of it.
TEST(Recipes, SameBytesForAnyNumberOfThreads) {
  ThreadPool two(2);
  ThreadPool five(5);
  for (const TextureRecipe& recipe : AllTextures()) {
    const Bytes alone = Render(recipe, 150, 110, nullptr);
    EXPECT_EQ(Render(recipe, 150, 110, &two), alone) << recipe.name;
    EXPECT_EQ(Render(recipe, 150, 110, &five), alone) << recipe.name;
  }
}

TEST(Recipes, PlainOnesArePlain) {
  for (const TextureRecipe& recipe : AllTextures()) {
    if (!IsPlain(recipe)) continue;
    const std::uint8_t grey = recipe.name == "Solid" ? 166 : 255;
    const Bytes bytes = Render(recipe, recipe.width, recipe.height, nullptr);
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), grey), std::ssize(bytes)) << recipe.name;
  }
}

TEST(Recipes, UseTheRangeAndDoNotTile) {
  constexpr int kWidth = 640, kHeight = 480, kBlock = 16;
  ThreadPool pool(0);
  for (const TextureRecipe& recipe : AllTextures()) {
    if (IsPlain(recipe)) continue;
    SCOPED_TRACE(recipe.name);
    const Bytes bytes = Render(recipe, kWidth, kHeight, &pool);
    Bytes sorted = bytes;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_LT(sorted[sorted.size() / 100], 110) << "something dark";
    EXPECT_GT(sorted[sorted.size() - sorted.size() / 100 - 1], 170) << "something light";
    EXPECT_GT(std::set<std::uint8_t>(bytes.begin(), bytes.end()).size(), 150U) << "no banding";

    std::map<std::string, int> blocks;
    for (int y = 0; y < kHeight; y += kBlock) {
      for (int x = 0; x < kWidth; x += kBlock) {
        std::string block;
        for (int row = y; row < y + kBlock; ++row) {
          const auto from = bytes.begin() + row * kWidth + x;
          block.append(from, from + kBlock);
        }
        const bool flat = block.find_first_not_of(block[0]) == std::string::npos;
        const int seen = flat ? 1 : ++blocks[block];
        EXPECT_EQ(seen, 1) << x << ' ' << y;
      }
    }
  }
}

TEST(Recipes, TheDefaultWashLeavesMostOfThePicture) {
  for (const TextureRecipe& recipe : AllTextures()) {
    if (recipe.name != "Scratched") continue;
    ThreadPool pool(0);
    const Bytes bytes = Render(recipe, recipe.width, recipe.height, &pool);
    const double all = static_cast<double>(bytes.size());
    const auto white = std::count_if(bytes.begin(), bytes.end(), [](int v) { return v >= 250; });
    const auto black = std::count_if(bytes.begin(), bytes.end(), [](int v) { return v <= 10; });
    EXPECT_GT(static_cast<double>(white) / all, 0.6);
    EXPECT_GT(static_cast<double>(black) / all, 0.005);
    EXPECT_LT(static_cast<double>(black) / all, 0.08);
  }
}

}  // namespace
}  // namespace tarnwick::content
