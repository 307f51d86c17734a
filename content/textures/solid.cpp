// Solid: nothing but an even grey. As a surface it gives a flat relief, as a
// background one plain colour, as a wash an even veil.
//
// The grey is 166 of 255: 0.65, the tone at which a background shows its
// middle colour and nothing of the other two.
#include "builder/texture_recipe.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  return Field(sheet, 166.0F / 255.0F);
}

const RegisteredTexture kSolid(TextureRecipe{.name = "Solid",
                                             .set = TextureSet::kEssentials,
                                             .seed = 1,
                                             .paint = Paint,
                                             .width = 512,
                                             .height = 384});

}  // namespace
}  // namespace tarnwick::content
