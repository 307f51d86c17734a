#include <gtest/gtest.h>

#include "builder/texture_recipe.h"
#include "textures/texture_set_table.h"

namespace tarnwick::content {
namespace {

// A number or name given twice, or one too long, would be lost on the way.
TEST(Filing, SetsComeBackAsTheyWereWritten) {
  TextureSetTable sets;
  for (const TextureSetName& entry : kTextureSets) {
    sets.push_back({static_cast<std::uint32_t>(entry.set), std::string(entry.name)});
  }
  std::vector<SetTableFault> faults;
  const TextureSetTable read = ParseTextureSets(TextureSetText(sets), faults);
  for (const SetTableFault& fault : faults) ADD_FAILURE() << fault.text;
  ASSERT_EQ(read.size(), sets.size());
  for (const TextureRecipe& recipe : AllTextures()) {
    EXPECT_EQ(FindSetName(read, static_cast<std::uint32_t>(recipe.set)),
              TextureSetNameOf(recipe.set))
        << recipe.name;
  }
}

}  // namespace
}  // namespace tarnwick::content
