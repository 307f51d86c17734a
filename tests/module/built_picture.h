#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tarnwick {

using Rgb = std::array<int, 3>;

// A bitmap of the module as Windows finds it, rows from the top.
struct BuiltPicture {
  int width = 0, height = 0;
  std::vector<Rgb> pixels;

  [[nodiscard]] const Rgb& At(int x, int y) const {
    return pixels.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                     static_cast<std::size_t>(x));
  }
};

// Numbers of the module's resources of a type, such as "#2" for bitmaps; ascending.
[[nodiscard]] std::vector<int> ResourceNumbers(const std::string& type);

// The bytes of one of them; an exception without it, or when it is there twice. Fails
// the test if its language is another than 1049.
[[nodiscard]] const std::string& ResourceBytes(const std::string& type, int number);

// An exception unless it is a plain bitmap of 24 bits.
[[nodiscard]] BuiltPicture BuiltBitmap(int number);

}  // namespace tarnwick
