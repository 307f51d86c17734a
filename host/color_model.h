#pragma once
#include <array>
#include <cstdint>

namespace tarnwick::testhost {

// How this host turns colours into each other: nothing that a printer would use,
// but exact, and red, green and blue come back as they were.
//
// CMYK is inverted, 255 is no ink:
//   from RGB  cyan, magenta and yellow are red, green and blue; no black
//   to RGB    red is cyan * black / 255, truncated; likewise the others
// Grey is (77 red + 151 green + 28 blue) / 256, truncated.
using Color = std::array<int, 4>;  // the components of a space, the rest 0

// False for a pair of spaces that it does not know.
[[nodiscard]] bool ConvertColor(int fromSpace, int toSpace, Color& color);

}  // namespace tarnwick::testhost
