#pragma once
#include <cstdint>
#include <vector>

#include "base/thread_pool.h"
#include "vec3.h"

namespace tarnwick::photo {

// From light to an 8-bit sRGB picture, three bytes a pixel: the fall-off of the
// lens towards the corners, the film's curve, its grain. Same bytes for any pool.
[[nodiscard]] std::vector<std::uint8_t> Develop(const std::vector<Vec3>& exposure, int width,
                                                int height, ThreadPool& pool);

// The film's answer, 0..1, to a linear exposure: a toe, a long straight part and
// a shoulder that never quite reaches white.
[[nodiscard]] float FilmCurve(float exposure);

}  // namespace tarnwick::photo
