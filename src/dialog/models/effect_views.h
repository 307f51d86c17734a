#pragma once
#include <cstdint>

#include "engine/view_mode.h"

namespace tarnwick {

// The pages of the tab control, by its index.
inline constexpr int kBasicTab = 0;
inline constexpr int kWashTab = 1;
inline constexpr int kSurfaceTab = 2;
inline constexpr int kBackgroundTab = 3;
inline constexpr int kTabs = 4;

// What the pane shows on each page. A page keeps its view while others are up.
struct EffectViews {
  std::uint8_t currentTab = kBasicTab;
  // The strip above the pane shows a second one. What the settings say may have
  // changed since; see SyncViews.
  bool hasSecondWash = false;
  bool hasSecondSurface = false;
  ViewMode basicView = ViewMode::kComposite;
  ViewMode washView = ViewMode::kComposite;
  ViewMode surfaceView = ViewMode::kComposite;
  ViewMode backgroundView = ViewMode::kComposite;

  [[nodiscard]] ViewMode& Current() {
    switch (currentTab) {
      case kWashTab:
        return washView;
      case kSurfaceTab:
        return surfaceView;
      case kBackgroundTab:
        return backgroundView;
      default:
        return basicView;
    }
  }
};

}  // namespace tarnwick
