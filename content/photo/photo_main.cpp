#include <charconv>
#include <cstdio>
#include <cstring>
#include <string>

#include "render_photo.h"

namespace {

using tarnwick::photo::PhotoOptions;

constexpr const char* kUsage =
    "usage: tarnwick-photo [--width N] [--height N] [--samples N] [--threads N] -o FILE.ppm\n"
    "Renders the sample photograph as 8-bit sRGB. The bytes do not depend on --threads.\n";

bool Number(const char* text, int lowest, int highest, int& value) {
  const char* end = text + std::strlen(text);
  const auto [at, error] = std::from_chars(text, end, value);
  return error == std::errc() && at == end && value >= lowest && value <= highest;
}

bool Parse(int count, char** words, PhotoOptions& options, std::string& output) {
  for (int i = 1; i < count; i += 2) {
    const std::string name = words[i];
    if (i + 1 >= count) return false;
    const char* value = words[i + 1];
    if (name == "-o") {
      output = value;
    } else if (name == "--width") {
      if (!Number(value, 16, 8000, options.width)) return false;
    } else if (name == "--height") {
      if (!Number(value, 16, 8000, options.height)) return false;
    } else if (name == "--samples") {
      if (!Number(value, 1, 1024, options.samples)) return false;
    } else if (name == "--threads") {
      if (!Number(value, 0, 1024, options.threads)) return false;
    } else {
      return false;
    }
  }
  return !output.empty();
}

// Written beside the target and renamed, so that a broken run leaves no half picture.
bool WritePpm(const std::string& path, const PhotoOptions& options,
              const std::vector<std::uint8_t>& bytes) {
  const std::string part = path + ".part";
  std::FILE* file = std::fopen(part.c_str(), "wb");
  if (file == nullptr) return false;
  bool good = std::fprintf(file, "P6\n%d %d\n255\n", options.width, options.height) > 0;
  good = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size() && good;
  good = std::fclose(file) == 0 && good;
  return good && std::rename(part.c_str(), path.c_str()) == 0;
}

}  // namespace

int main(int count, char** words) {
  PhotoOptions options;
  std::string output;
  if (!Parse(count, words, options, output)) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  if (!WritePpm(output, options, tarnwick::photo::RenderPhoto(options))) {
    std::fprintf(stderr, "tarnwick-photo: %s: cannot be written\n", output.c_str());
    return 1;
  }
  return 0;
}
