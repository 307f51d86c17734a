#pragma once

namespace tarnwick {

// The drawers, and the controls in one.
inline constexpr int kTextureDrawer = 1177;
inline constexpr int kColorDrawer = 1178;

inline constexpr int kDrawerTitle = 1179;
inline constexpr int kDrawerSetBox = 1110;
inline constexpr int kDrawerEffectBox = 1111;
inline constexpr int kDrawerSetLabel = 1116;
inline constexpr int kDrawerEffectLabel = 1117;
inline constexpr int kDrawerPageRight = 1003;
inline constexpr int kDrawerPageLeft = 1004;
inline constexpr int kDrawerLive = 1443;

}  // namespace tarnwick
