#pragma once
#include <array>
#include <cstdint>
#include <string_view>

namespace tarnwick::content {

// The sets by which the library is filed. The numbers go into texture files:
// never give an old one a new meaning.
enum class TextureSet : std::uint32_t {
  kEssentials = 1,
  kDarkroom = 2,
  kWallsAndSigns = 3,
  kForge = 4,
  kPaperDrawer = 5,
  kTimberYard = 6,
  kHidesAndCloth = 7,
  kQuarry = 8,
  kWeatherStation = 9,
};

struct TextureSetName {
  TextureSet set;
  std::string_view name;
};

// In the order in which they are offered.
inline constexpr std::array<TextureSetName, 9> kTextureSets = {{
    {TextureSet::kEssentials, "Essentials"},
    {TextureSet::kDarkroom, "Darkroom"},
    {TextureSet::kWallsAndSigns, "Walls and Signs"},
    {TextureSet::kForge, "The Forge"},
    {TextureSet::kPaperDrawer, "Paper Drawer"},
    {TextureSet::kTimberYard, "Timber Yard"},
    {TextureSet::kHidesAndCloth, "Hides and Cloth"},
    {TextureSet::kQuarry, "The Quarry"},
    {TextureSet::kWeatherStation, "Weather Station"},
}};

[[nodiscard]] constexpr std::string_view TextureSetNameOf(TextureSet set) {
  for (const TextureSetName& entry : kTextureSets) {
    if (entry.set == set) return entry.name;
  }
  return {};
}

}  // namespace tarnwick::content
