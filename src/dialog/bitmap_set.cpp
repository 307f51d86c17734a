#include "dialog/bitmap_set.h"

#include <cstdint>
#include <vector>

namespace tarnwick {
namespace {

constexpr int kDrawnFace = 240;

// Every pixel in the light of another face.
void TintToFace(HBITMAP bitmap) {
  const COLORREF face = GetSysColor(COLOR_BTNFACE);
  const int parts[3] = {GetBValue(face), GetGValue(face), GetRValue(face)};
  if (parts[0] == kDrawnFace && parts[1] == kDrawnFace && parts[2] == kDrawnFace) return;
  BITMAP shape{};
  if (GetObjectA(bitmap, sizeof shape, &shape) == 0 || shape.bmWidth < 1 || shape.bmHeight < 1) {
    return;
  }
  BITMAPINFO info{};
  info.bmiHeader = {
      sizeof info.bmiHeader, shape.bmWidth, -shape.bmHeight, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
  const auto height = static_cast<UINT>(shape.bmHeight);
  const auto rowBytes = (static_cast<std::size_t>(shape.bmWidth) * 3 + 3) / 4 * 4;
  std::vector<std::uint8_t> pixels(rowBytes * height);
  const HDC screen = GetDC(nullptr);
  if (GetDIBits(screen, bitmap, 0, height, pixels.data(), &info, DIB_RGB_COLORS) != 0) {
    for (std::size_t row = 0; row < height; ++row) {
      std::uint8_t* const pixel = pixels.data() + row * rowBytes;
      for (std::size_t i = 0; i < static_cast<std::size_t>(shape.bmWidth) * 3; ++i) {
        const int tinted = pixel[i] * parts[i % 3] / kDrawnFace;
        pixel[i] = static_cast<std::uint8_t>(tinted < 255 ? tinted : 255);
      }
    }
    SetDIBits(screen, bitmap, 0, height, pixels.data(), &info, DIB_RGB_COLORS);
  }
  ReleaseDC(nullptr, screen);
}

}  // namespace

HBITMAP BitmapSet::Load(HINSTANCE instance, int id) {
  const auto found = bitmaps_.find(id);
  if (found != bitmaps_.end()) return found->second;
  const HBITMAP bitmap = LoadBitmapA(instance, MAKEINTRESOURCEA(id));
  if (bitmap != nullptr) bitmaps_.emplace(id, bitmap);
  return bitmap;
}

HBITMAP BitmapSet::LoadOnFace(HINSTANCE instance, int id) {
  const bool isNew = bitmaps_.count(id) == 0;
  const HBITMAP bitmap = Load(instance, id);
  if (isNew && bitmap != nullptr) TintToFace(bitmap);
  return bitmap;
}

void BitmapSet::Free() {
  for (const auto& entry : bitmaps_) DeleteObject(entry.second);
  bitmaps_.clear();
}

}  // namespace tarnwick
