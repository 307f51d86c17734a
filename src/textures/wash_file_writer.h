#pragma once
#include <cstdint>
#include <span>
#include <string>

namespace tarnwick {

// What the header of a texture file tells beside the samples.
struct WashFileHeader {
  int width = 0;     // 1..kMaxPictureSide
  int height = 0;    // 1..kMaxPictureSide
  int channels = 1;  // 1 for grey, 3 for colour; the engine reads plane 0 alone
  std::uint32_t setId = 0;
  std::uint32_t headerWord = 0;  // kept for the catalogue, no meaning yet
  std::uint32_t effectMask = 0;  // bit n set: effect n of texture_effects.h
};

enum class WashWriteOutcome {
  kDone,
  kBadPicture,   // a size, channel count or sample count that cannot be
  kOutOfMemory,  // for the packed samples
  kCannotWrite,  // folder missing, disk full, name taken by a folder ...
};

// Writes a texture file (".twk", current format) as a whole or not at all: the
// bytes go to `path` with ".part" appended, which is then renamed over `path`.
//
// Samples  8-bit, `channels` planes one after the other, top row first, rows
//          and planes without padding: width * height * channels of them.
// Packing  zlib at level 9. Two versions of zlib may pack differently; what is
//          equal everywhere are the samples.
// Errors   `path` is untouched and the ".part" file gone unless kDone.
[[nodiscard]] WashWriteOutcome WriteWashFile(const std::string& path, const WashFileHeader& header,
                                             std::span<const std::uint8_t> samples);

}  // namespace tarnwick
