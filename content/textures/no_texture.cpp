// No_Texture: white all over. A wash of it leaves every pixel alone; the name
// in a slot means that the slot is empty.
#include "builder/texture_recipe.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  return Field(sheet, 1.0F);
}

const RegisteredTexture kNoTexture(TextureRecipe{.name = "No_Texture",
                                                 .set = TextureSet::kEssentials,
                                                 .seed = 1,
                                                 .paint = Paint,
                                                 .width = 512,
                                                 .height = 384});

}  // namespace
}  // namespace tarnwick::content
