#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "builder/texture_sets.h"
#include "toolbox/field.h"

namespace tarnwick::content {

// A texture of the library: what it is filed under and how it is painted.
struct TextureRecipe {
  std::string_view name;  // without ".twk"; the recipe's file is the same in lower case
  TextureSet set = TextureSet::kEssentials;
  std::vector<std::string_view> effects = {};  // names of textures/texture_effects.h
  std::uint32_t seed = 1;
  Field (*paint)(const Sheet& sheet) = nullptr;
  int width = 2048;
  int height = 1536;
};

// One of these at the end of a recipe's file enters it in the list.
class RegisteredTexture {
 public:
  explicit RegisteredTexture(TextureRecipe recipe);
};

// Every recipe linked into the program, by name.
[[nodiscard]] std::vector<TextureRecipe> AllTextures();

// Name with ".twk".
[[nodiscard]] std::string TextureFileName(const TextureRecipe& recipe);

// The bits of all its effects; 0 if one of the names does not exist.
[[nodiscard]] std::uint32_t EffectMask(const TextureRecipe& recipe);

// Paints it at its own size, or at a smaller one for a look or a test.
[[nodiscard]] Field PaintTexture(const TextureRecipe& recipe, int width, int height,
                                 ThreadPool* pool);

}  // namespace tarnwick::content
