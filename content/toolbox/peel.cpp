#include "toolbox/peel.h"

#include "toolbox/filters.h"
#include "toolbox/tone.h"

namespace tarnwick::content {

PeelingCoat Peel(const Sheet& sheet, const Field& loss, const PeelStyle& style) {
  PeelingCoat coat;
  coat.cover = Painted(
      sheet, [&](Spot p) { return 1.0F - SoftThreshold(loss(p), style.at, style.softness); });
  // Along a rim there is more of the coat here than all around.
  Field around = coat.cover;
  Blur(sheet, around, style.curl);
  coat.lift = Painted(sheet, [&](Spot p) { return coat.cover(p) * (1.0F - around(p)); });
  Field shade = coat.cover;
  Blur(sheet, shade, 0.75F * style.thickness);
  coat.shadow = Painted(sheet, [&](Spot p) {
    const float cast = shade.Sample(p.fx - style.thickness, p.fy - 1.25F * style.thickness);
    return cast * (1.0F - coat.cover(p));
  });
  return coat;
}

}  // namespace tarnwick::content
