#pragma once
#include <string>
#include <vector>

#include "builder/texture_recipe.h"

namespace tarnwick::content {

// A texture and the thing that it imitates.
struct DescribedTexture {
  TextureRecipe recipe;
  std::string what;
};

// A picture of the page: textures of one set, in the order of their names.
struct TextureSheet {
  std::string fileName;  // "timber-yard.jpg"; "-1" and so on where a set has several
  TextureSet set;
  std::vector<TextureRecipe> recipes;
};

// All textures on sheets, set after set in the order in which sets are offered;
// a set that would make its sheet too heavy is dealt out evenly to several.
[[nodiscard]] std::vector<TextureSheet> SheetsOf(const std::vector<TextureRecipe>& recipes);

// "Woods, Texture (Light)"
[[nodiscard]] std::string EffectNames(const TextureRecipe& recipe);

// The generated part of docs/textures.md, in Markdown: for each set its sheets
// and a table, then the textures of every effect.
[[nodiscard]] std::string TexturePage(const std::vector<DescribedTexture>& textures);

}  // namespace tarnwick::content
