#include <gtest/gtest.h>

#include <sstream>

#include "pages/recipe_head.h"
#include "pages/texture_page.h"
#include "pages/toolbox_blocks.h"

namespace tarnwick::content {
namespace {

TEST(RecipeHead, FirstSentenceOfTheFirstParagraph) {
  const struct {
    const char* name;
    const char* source;
    std::optional<std::string> want;
  } kHeads[] = {
      {"one line", "// Old_Door: a door. It is old.\n#include", "a door"},
      {"over two lines", "// Old_Door: a door that\n// stood open. More.\n",
       "a door that stood open"},
      {"sentence ends the line", "// Old_Door: a door.\n//\n// What makes it. That.\n", "a door"},
      {"line ends the sentence", "// Old_Door: a door.\n// It is old.\n", "a door"},
      {"point in a number", "// Old_Door: 0.65 of a door. Old.\n", "0.65 of a door"},
      {"no full stop before the gap", "// Old_Door: a door\n//\n// More. Yes.\n", std::nullopt},
      {"another name", "// Old_Gate: a gate.\n", std::nullopt},
      {"nothing said", "// Old_Door: . More.\n", std::nullopt},
      {"no comment", "#include\n// Old_Door: a door.\n", std::nullopt},
      {"empty", "", std::nullopt},
  };
  for (const auto& head : kHeads) {
    std::istringstream source(head.source);
    EXPECT_EQ(HeadSentence(source, "Old_Door"), head.want) << head.name;
  }
}

std::vector<TextureRecipe> Textures(TextureSet set, std::size_t count) {
  static const std::string kNames = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  std::vector<TextureRecipe> recipes;
  for (std::size_t i = 0; i < count; ++i) {
    recipes.push_back({.name = std::string_view(kNames).substr(i, 1), .set = set});
  }
  return recipes;
}

TEST(TexturePage, SheetsHoldTwelveAtMostInOrder) {
  std::vector<TextureRecipe> recipes = Textures(TextureSet::kTimberYard, 25);
  const std::vector<TextureRecipe> darkroom = Textures(TextureSet::kDarkroom, 12);
  recipes.insert(recipes.end(), darkroom.begin(), darkroom.end());
  std::string dealt;
  for (const TextureSheet& sheet : SheetsOf(recipes)) {
    dealt += sheet.fileName + ' ';
    for (const TextureRecipe& recipe : sheet.recipes) dealt += recipe.name;
    dealt += '\n';
  }
  EXPECT_EQ(dealt,
            "darkroom.jpg ABCDEFGHIJKL\n"
            "timber-yard-1.jpg ABCDEFGH\n"
            "timber-yard-2.jpg IJKLMNOP\n"
            "timber-yard-3.jpg QRSTUVWXY\n");
}

TEST(TexturePage, EachTextureUnderItsSetAndItsEffects) {
  const std::string page = TexturePage(
      {{{.name = "Old_Door", .set = TextureSet::kTimberYard, .effects = {"Woods", "Papers"}},
        "a door"},
       {{.name = "Old_Rag", .set = TextureSet::kTimberYard, .effects = {"Papers"}}, "a rag"}});
  const std::size_t yard =
      page.find("## Timber Yard\n\n![Timber Yard](textures/timber-yard.jpg)\n");
  const std::size_t next = page.find("## Hides and Cloth\n");
  const std::size_t door = page.find("| `Old_Door` | Woods, Papers | a door |\n");
  ASSERT_NE(yard, std::string::npos) << page;
  EXPECT_TRUE(yard < door && door < next) << page;
  EXPECT_NE(page.find("| Papers | `Old_Door`, `Old_Rag` |\n"), std::string::npos) << page;
  EXPECT_NE(page.find("| Woods | `Old_Door` |\n"), std::string::npos) << page;
}

// A demonstration has to show something: neither flat nor washed out.
TEST(ToolboxBlocks, PicturesUseTheRange) {
  const Sheet sheet{kBlockWidth, kBlockHeight, 1887, nullptr};
  for (const ToolboxChapter& chapter : ToolboxChapters()) {
    for (const ToolboxBlock& block : chapter.blocks) {
      const std::vector<std::uint8_t> bytes = ToBytes(sheet, block.paint(sheet));
      std::size_t dark = 0, light = 0;
      for (const std::uint8_t byte : bytes) {
        dark += byte < 110 ? 1U : 0U;
        light += byte > 140 ? 1U : 0U;
      }
      EXPECT_GT(dark, bytes.size() / 200) << block.name;
      EXPECT_GT(light, bytes.size() / 10) << block.name;
    }
  }
}

}  // namespace
}  // namespace tarnwick::content
