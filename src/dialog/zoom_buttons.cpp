#include "dialog/zoom_buttons.h"

#include "resources/art_ids.h"

namespace tarnwick {

void ZoomButtonSkins::Skin(HWND zoomIn, HWND zoomOut, BitmapSet& bitmaps, HINSTANCE instance) {
  const auto load = [&](int id) { return bitmaps.LoadOnFace(instance, id); };
  if (zoomIn != nullptr) {
    SkinStockButton(zoomIn_, zoomIn, load(TARNWICK_ART_ZOOM_IN), load(TARNWICK_ART_ZOOM_IN_HOVER),
                    load(TARNWICK_ART_ZOOM_IN_DISABLED), nullptr, nullptr, nullptr);
  }
  if (zoomOut != nullptr) {
    SkinStockButton(zoomOut_, zoomOut, load(TARNWICK_ART_ZOOM_OUT),
                    load(TARNWICK_ART_ZOOM_OUT_HOVER), load(TARNWICK_ART_ZOOM_OUT_DISABLED),
                    nullptr, nullptr, nullptr);
  }
}

}  // namespace tarnwick
