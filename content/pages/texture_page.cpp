#include "pages/texture_page.h"

#include <algorithm>
#include <iterator>

#include "textures/texture_effects.h"

namespace tarnwick::content {
namespace {

// Twelve noisy pictures keep a sheet below 450 kB.
constexpr std::size_t kMostOnASheet = 12;

std::string FileStem(TextureSet set) {
  std::string stem;
  for (const char letter : TextureSetNameOf(set)) {
    stem += letter == ' '
                ? '-'
                : (letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter);
  }
  return stem;
}

bool Carries(const TextureRecipe& recipe, std::string_view effect) {
  return std::find(recipe.effects.begin(), recipe.effects.end(), effect) != recipe.effects.end();
}

}  // namespace

std::vector<TextureSheet> SheetsOf(const std::vector<TextureRecipe>& recipes) {
  std::vector<TextureSheet> sheets;
  for (const TextureSetName& entry : kTextureSets) {
    std::vector<TextureRecipe> ofSet;
    std::copy_if(recipes.begin(), recipes.end(), std::back_inserter(ofSet),
                 [&](const TextureRecipe& recipe) { return recipe.set == entry.set; });
    const std::size_t count = (ofSet.size() + kMostOnASheet - 1) / kMostOnASheet;
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t first = ofSet.size() * i / count;
      const std::size_t last = ofSet.size() * (i + 1) / count;
      const std::string number = count > 1 ? "-" + std::to_string(i + 1) : "";
      sheets.push_back({FileStem(entry.set) + number + ".jpg",
                        entry.set,
                        {ofSet.begin() + static_cast<std::ptrdiff_t>(first),
                         ofSet.begin() + static_cast<std::ptrdiff_t>(last)}});
    }
  }
  return sheets;
}

std::string EffectNames(const TextureRecipe& recipe) {
  std::string names;
  for (const std::string_view effect : recipe.effects) {
    if (!names.empty()) names += ", ";
    names += effect;
  }
  return names;
}

std::string TexturePage(const std::vector<DescribedTexture>& textures) {
  std::vector<TextureRecipe> recipes;
  for (const DescribedTexture& texture : textures) recipes.push_back(texture.recipe);
  const std::vector<TextureSheet> sheets = SheetsOf(recipes);

  std::string page;
  for (const TextureSetName& entry : kTextureSets) {
    const std::string setName(entry.name);
    page += "## " + setName + "\n\n";
    for (const TextureSheet& sheet : sheets) {
      if (sheet.set == entry.set) page += "![" + setName + "](textures/" + sheet.fileName + ")\n\n";
    }
    page += "| Texture | Effects | What it is |\n|---|---|---|\n";
    for (const auto& [recipe, what] : textures) {
      if (recipe.set != entry.set) continue;
      page +=
          "| `" + std::string(recipe.name) + "` | " + EffectNames(recipe) + " | " + what + " |\n";
    }
    page += '\n';
  }

  page += "## By effect\n\n| Effect | Textures |\n|---|---|\n";
  for (const std::string_view effect : kTextureEffects) {
    page += "| " + std::string(effect) + " | ";
    std::string names;
    for (const TextureRecipe& recipe : recipes) {
      if (!Carries(recipe, effect)) continue;
      if (!names.empty()) names += ", ";
      names += '`' + std::string(recipe.name) + '`';
    }
    page += names + " |\n";
  }
  return page;
}

}  // namespace tarnwick::content
