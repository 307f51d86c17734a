#include "render_photo.h"

#include "base/thread_pool.h"
#include "develop.h"
#include "farmyard.h"
#include "frame.h"
#include "noise.h"
#include "tracer.h"

namespace tarnwick::photo {
namespace {

// A place within the pixel and a little around it: the softness of a lens.
float Soft(float a) {
  const float t = a * 2 - 1;
  return 0.5f + 0.80f * t * (1 - 0.45f * (t < 0 ? -t : t)) * 1.15f;
}

FramePixel Expose(const Scene& scene, const Sky& sky, const Camera& camera, int x, int y, int samples) {
  FramePixel pixel;
  float squares = 0;
  Vec3 ambient;
  const auto seed = HashWords(static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y));
  for (int i = 0; i < samples; ++i) {
    const Choices choices(seed, i);
    float a = 0;
    float b = 0;
    choices.Pair(99, a, b);
    const Sample s = TraceSample(scene, sky, camera, static_cast<float>(x) + Soft(a), static_cast<float>(y) + Soft(b), choices);
    pixel.direct += s.direct;
    pixel.tint += s.tint;
    ambient += s.tint * s.ambient;
    pixel.normal += s.normal;
    pixel.distance += s.distance;
    squares += s.distance * s.distance;
  }
  const float k = 1 / static_cast<float>(samples);
  pixel.direct *= k;
  pixel.tint *= k;
  ambient *= k;
  pixel.normal *= k;
  pixel.distance *= k;
  const float variance = Max(squares * k - pixel.distance * pixel.distance, 0);
  pixel.spread = std::sqrt(variance) / (pixel.distance + 1e-3f);
  const auto over = [](float v, float by) { return by > 1e-5f ? v / by : 0.0f; };
  pixel.ambient = {over(ambient.x, pixel.tint.x), over(ambient.y, pixel.tint.y), over(ambient.z, pixel.tint.z)};
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
  pool.ForRows(0, options.height, 1, [&](int first, int last) {
    for (int y = first; y < last; ++y)
      for (int x = 0; x < options.width; ++x) frame.At(x, y) = Expose(scene, sky, camera, x, y, options.samples);
  });
  return Develop(SmoothedLight(frame, pool), options.width, options.height, pool);
}

}  // namespace tarnwick::photo
