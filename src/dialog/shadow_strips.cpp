#include "dialog/shadow_strips.h"

namespace tarnwick {
namespace {

BITMAPINFO InfoFor(int width, int rows) {
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, width, -rows, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
  return info;
}

void PaintStrip(HDC dc, int x, int y, int width, const std::vector<std::uint8_t>& pixels) {
  if (pixels.empty()) return;
  const BITMAPINFO info = InfoFor(width, kStripRows);
  SetDIBitsToDevice(dc, x, y, static_cast<DWORD>(width), kStripRows, 0, 0, 0, kStripRows,
                    pixels.data(), &info, DIB_RGB_COLORS);
}

}  // namespace

void ShadowStrips::LoadShade(HBITMAP bitmap) {
  shade_ = {};
  BITMAP shape{};
  if (bitmap == nullptr || GetObjectA(bitmap, sizeof shape, &shape) == 0 ||
      shape.bmWidth != kShadeColumns || shape.bmHeight != kStripRows) {
    return;
  }
  BITMAPINFO info = InfoFor(kShadeColumns, kStripRows);
  constexpr auto kRowBytes = static_cast<std::size_t>(StripRowBytes(kShadeColumns));
  std::uint8_t pixels[kRowBytes * kStripRows] = {};
  const HDC screen = GetDC(nullptr);
  GetDIBits(screen, bitmap, 0, kStripRows, pixels, &info, DIB_RGB_COLORS);
  ReleaseDC(nullptr, screen);
  for (std::size_t row = 0; row < kStripRows; ++row) {
    for (std::size_t x = 0; x < kShadeColumns; ++x) {
      shade_[row][x] = static_cast<float>(pixels[row * kRowBytes + x * 3]) / 255.0F;
    }
  }
}

void ShadowStrips::SetWidth(int width) {
  const COLORREF color = GetSysColor(COLOR_BTNFACE);
  const FaceColor face = {GetBValue(color), GetGValue(color), GetRValue(color)};
  width_ = width;
  upper_ = BuildShadowStrip(shade_, face, width, true);
  lower_ = BuildShadowStrip(shade_, face, width, false);
}

void ShadowStrips::Paint(HDC dc, int x, int upperTop, int lowerTop) const {
  PaintStrip(dc, x, upperTop, width_, upper_);
  PaintStrip(dc, x, lowerTop, width_, lower_);
}

}  // namespace tarnwick
