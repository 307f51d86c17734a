#pragma once
#include <array>
#include <cstdint>
#include <string_view>

namespace tarnwick {

// The kinds of look by which textures are filtered, in the order of the filter
// box. Row n of the box, counting "All Effects" as 0, is bit n of a texture
// file's effect mask; bit 0 is not used. A texture may carry several.
inline constexpr std::array<std::string_view, 20> kTextureEffects = {
    "Animal Patterns", "Distress (Heavy)", "Distress (Light)", "Distress (Medium)",
    "Ephemeral",       "Erosion (Heavy)",  "Erosion (Light)",  "Erosion (Medium)",
    "Fabrics",         "Industrial",       "Leather",          "Metals",
    "Papers",          "Scratches",        "Stone/Minerals",   "Texture (Heavy)",
    "Texture (Light)", "Texture (Medium)", "Weathered/Aged",   "Woods",
};

// The name of bit `bit`, empty if no effect has it.
[[nodiscard]] std::string_view TextureEffectName(int bit);

// The bit, 1..20, of the effect called `name`, without regard to case; 0 if
// there is none.
[[nodiscard]] int TextureEffectBit(std::string_view name);

// The mask of one effect by name: 1 << bit, or 0 for an unknown name.
[[nodiscard]] std::uint32_t TextureEffectMask(std::string_view name);

}  // namespace tarnwick
