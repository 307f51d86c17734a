#pragma once
#include <cstdint>
#include <vector>

namespace tarnwick::photo {

struct PhotoOptions {
  int width = 3000, height = 2000;
  int samples = 8;   // a pixel at the most
  int threads = 0;   // 0: one for each processor
  float detail = 1;  // 0..1 of the leaves and grass; less is quicker to build
};

// The photograph, three bytes of sRGB a pixel, rows from the top. The bytes
// depend on the options but not on `threads`.
[[nodiscard]] std::vector<std::uint8_t> RenderPhoto(const PhotoOptions& options);

}  // namespace tarnwick::photo
