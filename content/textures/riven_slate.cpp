// Riven_Slate: a roofing slate split with the bolster. The break ran along one
// layer, jumped to the next, and left flat terraces with broken, feathered
// steps between them.
//
// What makes it read as that: level surfaces and abrupt steps, nothing rounded;
// steps long in one direction and ragged in the other; a fine grain that runs
// through everything the same way.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/facets.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

// Which of the layers lies open at a place, and how far from the next step.
float Terraced(float level, float sharp) {
  const float whole = static_cast<float>(FloorInt(level));
  const float t = level - whole;
  return whole + SmoothRamp(0.5F - sharp, 0.5F + sharp, t);
}

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  // Rock breaks along planes: the layers cut flat faces in lines, not in lobes.
  const Facets lie{300.0F, 0.78F, seed};
  const Facets shell{120.0F, 0.78F, seed + 10};
  const Fbm feather{34.0F, 3, 0.58F, seed + 20};
  const Fbm grain{5.0F, 4, 0.72F, seed + 30};
  const Fbm tint{520.0F, 5, 0.55F, seed + 38};
  const Cells chips{150.0F, 1.0F, seed + 44};
  const Cells slivers{58.0F, 1.0F, seed + 45};

  const auto turned = [](const Spot& p) {
    return Spot{p.x, p.y, 0.94F * p.fx + 0.34F * p.fy, 0.94F * p.fy - 0.34F * p.fx};
  };
  const Field grit = Painted(sheet, [&](Spot p) {
    const Spot q = turned(p);
    return grain(q.fx * 0.30F, q.fy);
  });
  const Field level = Painted(sheet, [&](Spot p) {
    const Spot q = turned(p);
    const float nick = feather(q.fx * 0.45F, q.fy * 1.2F);
    // Breaks are straight for a while and then turn: slate comes off in slivers.
    const float x = q.fx * 0.42F + 5.0F * nick;
    const float y = q.fy + 5.0F * nick;
    const float chip = chips(x, y + 0.25F * q.fx).id - 0.5F;
    const float sliver = slivers(x, y + 0.10F * q.fx).id - 0.5F;
    return 4.0F + 1.75F * lie(x * 1.15F, y) + 0.60F * shell(x, y) + 1.05F * chip + 0.42F * sliver +
           0.13F * nick;
  });
  Field height = Painted(sheet, [&](Spot p) {
    const float broad = Terraced(level(p), 0.035F);
    // Some layers split clean, others splintered all over.
    const int layer = FloorInt(level(p) + 0.5F);
    const float within = level(p) + 0.5F - static_cast<float>(layer);
    const float splinters = 0.15F + 0.75F * Unit(HashAt(layer, 9, seed));
    const float thin = Terraced(within * 3.7F, 0.04F);
    return 3.4F * broad + splinters * thin + 0.34F * grit(p);
  });
  // A step is crumbled by the width of a grain.
  Blur(sheet, height, 1.0F);
  const Field light = Relief(sheet, height, 0.26F);
  Field around = height;
  Blur(sheet, around, 14.0F);
  Field tone = Painted(sheet, [&](Spot p) {
    const Spot q = turned(p);
    const float layer = Unit(Hash(static_cast<std::uint32_t>(FloorInt(level(p) + 0.5F) + 40)));
    float value =
        0.44F + 0.17F * (layer - 0.5F) + 0.13F * tint(q.fx * 0.5F, q.fy) + 0.12F * grit(p);
    // Hollows keep the dust, free edges are scuffed pale.
    value += 0.055F * Clamp(height(p) - around(p), -2.5F, 2.5F);
    value += (light(p) > 0.0F ? 0.32F : 0.46F) * light(p);
    return value;
  });
  Soften(sheet, tone, 0.4F);
  StretchTo(sheet, tone, 0.002F, 0.997F);
  return tone;
}

const RegisteredTexture kRivenSlate(TextureRecipe{
    .name = "Riven_Slate",
    .set = TextureSet::kQuarry,
    .effects = {"Stone/Minerals", "Texture (Heavy)", "Erosion (Medium)"},
    .seed = 2030,
    .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
