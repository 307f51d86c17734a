#include "render_photo.h"

#include <numeric>

#include "base/thread_pool.h"
#include "develop.h"
#include "farmyard.h"
#include "frame.h"
#include "noise.h"
#include "tracer.h"

namespace tarnwick::photo {
namespace {

// A place around the pixel's centre, likelier near than far, at most one pixel off.
float Soft(float a) {
  return a < 0.5f ? std::sqrt(2 * a) - 0.5f : 1.5f - std::sqrt(2 - 2 * a);
}

// Takes samples until the pixel has settled, `most` at the most and half of that
// at the least: leaves need all of them, the sky few.
FramePixel Expose(const Scene& scene, const Sky& sky, const Camera& camera, int x, int y,
                  int most) {
  constexpr float kSettled = 0.015f;  // error of the mean, in square roots of exposure
  FramePixel pixel;
  Vec3 ambient;
  Vec3 aroundTint;
  float squares = 0;
  float tone = 0;
  float toneSquares = 0;
  float n = 0;
  const auto seed = HashWords(static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y));
  const int least = (most + 1) / 2;
  for (int i = 0; i < most; ++i) {
    const Choices choices(seed, i);
    float a = 0;
    float b = 0;
    choices.Pair(99, a, b);
    const Sample s = TraceSample(scene, sky, camera, static_cast<float>(x) + Soft(a),
                                 static_cast<float>(y) + Soft(b), choices, i % 2 == 0);
    n += 1;
    pixel.direct += s.direct;
    pixel.tint += s.tint;
    pixel.normal += s.normal;
    pixel.distance += s.distance;
    squares += s.distance * s.distance;
    if (s.around) {
      ambient += s.tint * s.ambient;
      aroundTint += s.tint;
    }
    const float look = std::sqrt(Luminance(s.direct + s.tint * 0.3f));
    tone += look;
    toneSquares += look * look;
    if (i + 1 < least) continue;
    const float mean = tone / n;
    if (toneSquares / n - mean * mean < kSettled * kSettled * n) break;
  }
  const float k = 1 / n;
  pixel.direct *= k;
  pixel.tint *= k;
  pixel.normal *= k;
  pixel.distance *= k;
  const float variance = Max(squares * k - pixel.distance * pixel.distance, 0);
  pixel.spread = std::sqrt(variance) / (pixel.distance + 1e-3f);
  const auto over = [](float v, float by) { return by > 1e-5f ? v / by : 0.0f; };
  pixel.ambient = {over(ambient.x, aroundTint.x), over(ambient.y, aroundTint.y),
                   over(ambient.z, aroundTint.z)};
  return pixel;
}

}  // namespace

std::vector<std::uint8_t> RenderPhoto(const PhotoOptions& options) {
  ThreadPool pool(options.threads);
  Scene scene;
  BuildFarmyard(scene, options.detail);
  const Camera camera(options.width, options.height);
  const Sky sky(camera, options.width, options.height, pool);
  Frame frame(options.width, options.height);
  // Rows are dealt out like cards, so that every thread gets its share of the
  // cheap sky and of the dear grass.
  int stride = options.height * 5 / 13;
  while (std::gcd(stride, options.height) != 1) ++stride;
  pool.ForRows(0, options.height, 1, [&](int first, int last) {
    for (int i = first; i < last; ++i) {
      const int y = static_cast<int>(static_cast<long long>(i) * stride % options.height);
      for (int x = 0; x < options.width; ++x)
        frame.At(x, y) = Expose(scene, sky, camera, x, y, options.samples);
    }
  });
  return Develop(SmoothedLight(frame, pool), options.width, options.height, pool);
}

}  // namespace tarnwick::photo
