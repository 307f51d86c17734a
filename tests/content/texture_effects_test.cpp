#include "textures/texture_effects.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(TextureEffects, NamesAndBits) {
  const struct {
    const char* name;
    int bit;
  } kCases[] = {
      {"Animal Patterns", 1}, {"Distress (Heavy)", 2}, {"Ephemeral", 5}, {"Fabrics", 9},
      {"Leather", 11},        {"Stone/Minerals", 15},  {"Woods", 20},    {"wEATHERED/aGED", 19},
      {"metals", 12},         {"All Effects", 0},      {"Wood", 0},      {"", 0},
      {"Woods ", 0}};
  for (const auto& c : kCases) {
    EXPECT_EQ(TextureEffectBit(c.name), c.bit) << c.name;
    EXPECT_EQ(TextureEffectMask(c.name), c.bit == 0 ? 0U : 1U << c.bit) << c.name;
  }
  EXPECT_EQ(TextureEffectName(14), "Scratches");
  EXPECT_EQ(TextureEffectName(0), "");
  EXPECT_EQ(TextureEffectName(21), "");
}

}  // namespace
}  // namespace tarnwick
