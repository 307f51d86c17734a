#pragma once
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

// What the header of a texture file tells.
struct TextureSummary {
  int width = 0;
  int height = 0;
  int planes = 1;  // 1 grey, 3 colour, of which the engine reads the first
  std::uint32_t setId = 0;
  std::uint32_t effectMask = 0;
};

// Nothing if the file cannot be read or is no texture.
[[nodiscard]] std::optional<TextureSummary> ReadTextureSummary(const std::filesystem::path& path);

// The names of a mask's effects, in the order of their bits.
[[nodiscard]] std::vector<std::string> EffectNames(std::uint32_t mask);

enum class PayloadState {
  kWhole,
  kShort,    // ends properly, but before the picture is full: the rest is black
  kLong,     // holds more than the picture, which is not read
  kCut,      // the file ends inside the stream: cannot be used
  kDamaged,  // cannot be unpacked: cannot be used
};

// Unpacks the samples of a texture and compares their number with the header.
[[nodiscard]] PayloadState CheckPayload(const std::filesystem::path& path,
                                        const TextureSummary& summary);

// "whole", "ends before the picture is full" ...
[[nodiscard]] std::string DescribePayload(PayloadState state);

// False for a texture that the engine would replace by plain white.
[[nodiscard]] bool IsUsable(PayloadState state);

}  // namespace tarnwick
