#include "builder/texture_recipe.h"

#include <algorithm>

#include "textures/texture_effects.h"

namespace tarnwick::content {
namespace {

// Inside a function, so that it exists before the first recipe of any file.
std::vector<TextureRecipe>& List() {
  static std::vector<TextureRecipe> list;
  return list;
}

}  // namespace

RegisteredTexture::RegisteredTexture(TextureRecipe recipe) {
  List().push_back(std::move(recipe));
}

std::vector<TextureRecipe> AllTextures() {
  std::vector<TextureRecipe> sorted = List();
  std::sort(sorted.begin(), sorted.end(),
            [](const TextureRecipe& a, const TextureRecipe& b) { return a.name < b.name; });
  return sorted;
}

std::string TextureFileName(const TextureRecipe& recipe) {
  return std::string(recipe.name) + ".twk";
}

std::uint32_t EffectMask(const TextureRecipe& recipe) {
  std::uint32_t mask = 0;
  for (std::string_view effect : recipe.effects) {
    const std::uint32_t bit = TextureEffectMask(effect);
    if (bit == 0) return 0;
    mask |= bit;
  }
  return mask;
}

Field PaintTexture(const TextureRecipe& recipe, int width, int height, ThreadPool* pool) {
  return recipe.paint({width, height, recipe.seed, pool});
}

}  // namespace tarnwick::content
