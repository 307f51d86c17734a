#pragma once
#include "base/cpu.h"
#include "base/row_progress.h"
#include "engine/effect_layer.h"
#include "engine/perlin_noise.h"

namespace tarnwick {

// Gradient noise at (x, y), both at least -4096; 64-bit, about -1..1. Cells
// repeat after 128.
[[nodiscard]] double NoiseAt(const PerlinNoise& noise, double x, double y);

// Fills the whole storage of plane 0, margin included, with five octaves of
// noise: 127 + trunc(sum * 127), modulo 256. Sums beyond 1 wrap the byte, which
// gives the odd specks of a coverage at high contrast; NaN gives 127.
// `window` says where sample (0, 0) lies and how far the next ones. Coordinates
// gather rounding as they advance. Reports each row; same bytes for any split.
// False without pixels.
[[nodiscard]] bool FillNoise(RasterImage& image, const NoiseWindow& window, Progress* progress,
                             ThreadPool* pool, Isa isa = BestIsa());

}  // namespace tarnwick
