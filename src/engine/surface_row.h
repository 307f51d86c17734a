#pragma once
#include <cstdint>

#include "engine/shade_color.h"

namespace tarnwick {

// What the surface stage does with a shaded pixel.
enum class SurfaceOutput : std::uint8_t {
  kBlend,       // the picture with its relief
  kPure,        // the tone colour alone
  kSourceOnly,  // the picture as it is
};

struct SurfaceLook {
  ShadeLook shade;
  float intensity = 1;  // of the blend, 0..1
  SurfaceOutput output = SurfaceOutput::kBlend;
  bool entire = false;    // the tone colour fills what is transparent
  bool keepSave = false;  // and is kept: `save` has its alpha then
};

// One row of `width` pixels. `light` is the brightness, `pixels` the picture with
// the alpha that counts. Writes `out`, and `save`, which may be null, if
// look.entire asks for it; all but the light 4 bytes a pixel.
struct SurfaceRow {
  const float* light;
  const std::uint8_t* pixels;
  std::uint8_t* out;
  std::uint8_t* save;
  int width;
};

void SurfaceRowPlain(const SurfaceRow& row, const SurfaceLook& look);
void SurfaceRowAvx2(const SurfaceRow& row, const SurfaceLook& look);

}  // namespace tarnwick
