#include "textures/texture_effects.h"

#include <cstddef>

namespace tarnwick {
namespace {

// Not std::tolower: the names are ASCII and no locale may change the answer.
constexpr char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool SameName(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (Lower(a[i]) != Lower(b[i])) return false;
  }
  return true;
}

}  // namespace

std::string_view TextureEffectName(int bit) {
  if (bit < 1 || bit > static_cast<int>(kTextureEffects.size())) return {};
  return kTextureEffects[static_cast<std::size_t>(bit) - 1];
}

int TextureEffectBit(std::string_view name) {
  for (std::size_t i = 0; i < kTextureEffects.size(); ++i) {
    if (SameName(kTextureEffects[i], name)) return static_cast<int>(i) + 1;
  }
  return 0;
}

std::uint32_t TextureEffectMask(std::string_view name) {
  const int bit = TextureEffectBit(name);
  return bit == 0 ? 0 : std::uint32_t{1} << bit;
}

}  // namespace tarnwick
