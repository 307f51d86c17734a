#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace tarnwick::testing {

// A picture of a test: samples interleaved, rows without padding.
struct Pnm {
  int width = 0;
  int height = 0;
  int planes = 0;
  std::vector<std::uint8_t> samples;
};

// Reads binary PGM, PPM and PAM at 8 bits. Throws std::runtime_error with the
// path when the file is none.
Pnm ReadPnm(const std::string& path);

bool FileExists(const std::string& path);
std::string ReadText(const std::string& path);

// Where the first difference lies, or empty: "x 3 y 0 plane 1: 5, wanted 6 (12
// samples differ)".
std::string FirstDifference(const Pnm& got, const Pnm& wanted);

}  // namespace tarnwick::testing
