// tarnwick-sound FILE: writes the sound of the Auto button.
#include <cstdio>
#include <fstream>

#include "resources/sound/auto_sound.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: tarnwick-sound FILE\n", stderr);
    return 2;
  }
  const std::vector<std::uint8_t> bytes = tarnwick::AutoSound();
  std::ofstream file(argv[1], std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) {
    std::fprintf(stderr, "tarnwick-sound: %s: cannot be written\n", argv[1]);
    return 1;
  }
}
