#pragma once
#include <cstdint>

namespace tarnwick {

// One row of an enlargement, `width` samples. Each column x has its four
// neighbours, spread to one sample a column (upper left, upper right, lower
// left, lower right), and the squares of its distances to the left and right
// neighbour; the row has those to the upper and lower one.
struct EnlargeRowArgs {
  const std::uint8_t* upperLeft;
  const std::uint8_t* upperRight;
  const std::uint8_t* lowerLeft;
  const std::uint8_t* lowerRight;
  const double* fx2;
  const double* gx2;
  double fy2;
  double gy2;
  std::uint8_t* out;
  int width;
};

void EnlargeRowPlain(const EnlargeRowArgs& args);
void EnlargeRowAvx2(const EnlargeRowArgs& args);

}  // namespace tarnwick
