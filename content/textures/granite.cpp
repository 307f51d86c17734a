// Granite: a polished slab. Blocky feldspar, glassy quartz that filled what was
// left between, flakes of black mica in clusters.
//
// What makes it read as that: three minerals with manners of their own instead
// of one speckle - feldspar pale with cleavage lines, each crystal in its own
// direction, quartz grey and clear with hair cracks, mica black with a glint
// along one side.
#include "builder/texture_recipe.h"
#include "toolbox/cells.h"
#include "toolbox/filters.h"
#include "toolbox/hash.h"
#include "toolbox/maths.h"
#include "toolbox/noise.h"
#include "toolbox/tone.h"

namespace tarnwick::content {
namespace {

Field Paint(const Sheet& sheet) {
  const std::uint32_t seed = sheet.seed;
  const Warp jagged{5.0F, {18.0F, 4, 0.62F, seed}};
  const Cells blocks{50.0F, 1.0F, seed + 5};
  const Cells grains{25.0F, 1.0F, seed + 6};
  const Cells flakes{15.0F, 1.0F, seed + 7};
  const Fbm clusters{90.0F, 4, 0.6F, seed + 8};
  const Fbm cloud{300.0F, 4, 0.5F, seed + 9};
  const Fbm wisp{16.0F, 3, 0.6F, seed + 10};
  const Fbm fine{3.0F, 2, 0.7F, seed + 11};
  const Fbm cracks{70.0F, 3, 0.6F, seed + 12};

  Field tone = Painted(sheet, [&](Spot p) {
    const Spot q = jagged(p);
    const CellSample block = blocks(q.fx, q.fy * 1.12F);
    const float low = cloud(p);
    const float dust = fine(p);
    const float way = block.id * kTau;
    const float u = p.fx * Cos(way) + p.fy * Sin(way);
    const float v = p.fy * Cos(way) - p.fx * Sin(way);
    const CellSample flake = flakes(q.fx, q.fy);
    const float dark = clusters(p) + 0.85F * (flake.id - 0.5F) - 0.10F * low;
    float value;
    if (dark > 0.34F) {
      // Mica splits in one direction; one side of a flake takes the light.
      const float lean = (flake.dx * Cos(flake.id * 40.0F) + flake.dy * Sin(flake.id * 40.0F));
      value =
          0.10F + 0.09F * Unit(flake.hash) + 0.26F * SmoothRamp(0.05F, 0.40F, lean) + 0.05F * dust;
    } else if (Unit(Hash(block.hash + 3)) < 0.60F) {
      const float cleavage =
          LineNoise(v * 0.30F, block.hash) + 0.6F * LineNoise(v * 0.9F, block.hash + 1);
      const float zone = SmoothRamp(0.0F, 0.75F, block.f1);
      value = 0.80F + 0.20F * (Unit(Hash(block.hash + 4)) - 0.5F) + 0.035F * cleavage +
              0.07F * wisp(u * 0.18F, v) - 0.09F * zone + 0.03F * dust + 0.05F * low;
    } else {
      const CellSample grain = grains(q.fx, q.fy);
      const float glass = 0.47F + 0.26F * (grain.id - 0.5F);
      const float hair = SmoothRamp(0.035F, 0.0F, Abs(cracks(q))) * 0.10F;
      const float rim = SmoothRamp(0.10F, 0.0F, grain.f2 - grain.f1) * 0.07F;
      value = glass + 0.06F * wisp(p) + hair - rim + 0.02F * dust + 0.04F * low;
    }
    // Grains part along a fine seam, and iron has crept into some of them.
    const float seam = SmoothRamp(0.075F, 0.0F, block.f2 - block.f1);
    return value * (1.0F - 0.22F * seam * (0.4F + 0.6F * Unit(Hash(block.hash + 9))));
  });
  Soften(sheet, tone, 0.45F);
  StretchTo(sheet, tone, 0.004F, 0.996F);
  return tone;
}

const RegisteredTexture kGranite(TextureRecipe{.name = "Granite",
                                               .set = TextureSet::kQuarry,
                                               .effects = {"Stone/Minerals", "Texture (Medium)"},
                                               .seed = 2010,
                                               .paint = Paint});

}  // namespace
}  // namespace tarnwick::content
