#include <array>
#include <string_view>

#include "materials.h"
#include "noise.h"
#include "portable_math.h"

// The enamelled sign: white letters on blue, chipped to rusty iron.
namespace tarnwick::photo {
namespace {

// Block letters as strokes in a cell 4 wide and 6 high, y down.
struct Stroke {
  float x0, y0, x1, y1;
};
struct Letter {
  char name;
  int strokes;
  std::array<Stroke, 5> stroke;
};
constexpr std::array<Letter, 14> kLetters{{
    {'T', 2, {{{0, 0, 4, 0}, {2, 0, 2, 6}}}},
    {'A', 3, {{{0, 6, 2, 0}, {2, 0, 4, 6}, {0.9f, 4, 3.1f, 4}}}},
    {'R',
     5,
     {{{0, 0, 0, 6}, {0, 0, 3.6f, 0.2f}, {3.9f, 0.6f, 3.9f, 2.6f}, {3.6f, 3, 0, 3}, {2, 3, 4, 6}}}},
    {'N', 3, {{{0, 6, 0, 0}, {0, 0, 4, 6}, {4, 6, 4, 0}}}},
    {'W', 4, {{{-0.3f, 0, 1, 6}, {1, 6, 2, 1.5f}, {2, 1.5f, 3, 6}, {3, 6, 4.3f, 0}}}},
    {'I', 1, {{{2, 0, 2, 6}}}},
    {'C',
     5,
     {{{4, 0.7f, 3.2f, 0},
       {3.2f, 0, 0.8f, 0},
       {0, 0.8f, 0, 5.2f},
       {0.8f, 6, 3.2f, 6},
       {3.2f, 6, 4, 5.3f}}}},
    {'K', 3, {{{0, 0, 0, 6}, {4, 0, 0, 3.4f}, {1.3f, 2.6f, 4, 6}}}},
    {'D',
     5,
     {{{0, 0, 0, 6}, {0, 0, 2.8f, 0}, {4, 1.2f, 4, 4.8f}, {2.8f, 6, 0, 6}, {2.8f, 0, 4, 1.2f}}}},
    {'Y', 3, {{{0, 0, 2, 3}, {4, 0, 2, 3}, {2, 3, 2, 6}}}},
    {'E', 4, {{{0, 0, 0, 6}, {0, 0, 4, 0}, {0, 3, 3.2f, 3}, {0, 6, 4, 6}}}},
    {'F', 3, {{{0, 0, 0, 6}, {0, 0, 4, 0}, {0, 3, 3.2f, 3}}}},
    {'S',
     5,
     {{{4, 0.4f, 0.6f, 0},
       {0, 0.6f, 0.3f, 2.6f},
       {0.3f, 2.7f, 3.7f, 3.3f},
       {4, 3.6f, 3.7f, 5.5f},
       {3.6f, 5.9f, 0, 5.7f}}}},
    {'O',
     5,
     {{{0.8f, 0, 3.2f, 0},
       {4, 0.8f, 4, 5.2f},
       {3.2f, 6, 0.8f, 6},
       {0, 5.2f, 0, 0.8f},
       {0, 0.8f, 0.8f, 0}}}},
}};

float StrokeDistance(const Stroke& s, float x, float y) {
  const float dx = s.x1 - s.x0;
  const float dy = s.y1 - s.y0;
  const float t = Saturate(((x - s.x0) * dx + (y - s.y0) * dy) / (dx * dx + dy * dy));
  const float ex = x - s.x0 - t * dx;
  const float ey = y - s.y0 - t * dy;
  return std::sqrt(ex * ex + ey * ey);
}

// Distance in metres to the strokes of `text`, centred on x = 0, letters
// `height` tall, their tops at y = top.
float TextDistance(std::string_view text, float height, float top, float x, float y) {
  const float unit = height / 6;
  constexpr float kPitch = 6.1f;
  const float width = kPitch * static_cast<float>(text.size()) - (kPitch - 4);
  const float ux = x / unit + width * 0.5f;
  const float uy = (top - y) / unit;
  float best = 99;
  const int at = static_cast<int>(std::floor((ux + 1) / kPitch));
  for (int i = at - 1; i <= at + 1; ++i) {
    if (i < 0 || i >= static_cast<int>(text.size())) continue;
    for (const Letter& letter : kLetters) {
      if (letter.name != text[static_cast<std::size_t>(i)]) continue;
      for (std::size_t k = 0; k < static_cast<std::size_t>(letter.strokes); ++k)
        best = Min(best, StrokeDistance(letter.stroke[k], ux - kPitch * static_cast<float>(i), uy));
    }
  }
  return best * unit;
}

float Abs(float v) {
  return v < 0 ? -v : v;
}

// Below 0 inside a rectangle with round corners.
float RoundBox(float x, float y, float halfX, float halfY, float radius) {
  const float dx = Abs(x) - halfX + radius;
  const float dy = Abs(y) - halfY + radius;
  const float ox = Max(dx, 0);
  const float oy = Max(dy, 0);
  return std::sqrt(ox * ox + oy * oy) + Min(Max(dx, dy), 0) - radius;
}

constexpr float kHalfX = 0.47f;
constexpr float kHalfY = 0.27f;

// Below 0 the enamel has gone: at the rim, around the screws, where stones hit.
float Enamel(float x, float y) {
  const float edge = -RoundBox(x, y, kHalfX, kHalfY, 0.03f);
  const float screw = Length({Abs(x) - kHalfX + 0.035f, Abs(y) - kHalfY + 0.035f, 0});
  const float ragged = Fbm2(x * 17 + 3, y * 17, 4);
  const float stones = Cells2(x * 5.5f + 0.6f, y * 5.5f + 0.35f).nearest * 0.18f;
  // One corner has been bent and has shed its glaze.
  const float corner = Length({x - kHalfX, (y + kHalfY) * 1.3f, 0});
  float good = edge * 9 + 0.02f + 0.22f * ragged;
  good = Min(good, (corner - 0.085f) * 7 + 0.42f * ragged);
  good = Min(good, (screw - 0.016f) * 8 + 0.16f * ragged);
  good = Min(good, (stones - 0.012f) * 6 + 0.13f * ragged +
                       0.25f * Fbm2(x * 2.1f, y * 2.1f + 4, 2) + 0.04f);
  return good;
}

}  // namespace

void DescribeSign(const Scene::Point& p, float footprint, Surface& s) {
  const float x = p.u;
  const float y = p.v;
  const float soft = Max(0.0010f, 0.5f * footprint);
  float white = 0;
  white = Max(white, Smooth(0.0104f + soft, 0.0104f - soft,
                            TextDistance("TARNWICK", 0.096f, 0.136f, x, y)));
  white = Max(white, Smooth(0.0078f + soft, 0.0078f - soft,
                            TextDistance("DAIRY", 0.075f, -0.085f, x * 0.98f, y)));
  const float rule = Max(Abs(y + 0.028f) - 0.0035f, Abs(x) - 0.37f);
  white = Max(white, Smooth(soft, -soft, rule));
  const float border = Abs(RoundBox(x, y, kHalfX - 0.026f, kHalfY - 0.026f, 0.02f)) - 0.0045f;
  white = Max(white, Smooth(soft, -soft, border));

  const float fade = 0.5f + 0.5f * Fbm2(x * 3, y * 3, 3);
  Vec3 glaze = Mix(Vec3{0.018f, 0.040f, 0.150f}, Vec3{0.040f, 0.075f, 0.200f}, fade);
  glaze = Mix(glaze, Vec3{0.66f, 0.64f, 0.58f}, white);
  const float good = Enamel(x, y);
  // Rust runs down from each wound.
  float run = 0;
  for (int i = 1; i <= 5; ++i) {
    const float up = static_cast<float>(i) * 0.022f;
    run = Max(run, Smooth(0.03f, -0.05f, Enamel(x + 0.004f * Noise2(x * 40, y * 9), y + up)) *
                       (1 - static_cast<float>(i) / 6.5f));
  }
  glaze = Mix(glaze, glaze * Vec3{0.75f, 0.46f, 0.26f} + Vec3{0.05f, 0.022f, 0.006f}, 0.8f * run);
  const float held = Smooth(-0.004f, 0.012f, good);
  const float fine = Fbm2(x * 90, y * 90, 3);
  Vec3 iron = Mix(Vec3{0.21f, 0.085f, 0.035f}, Vec3{0.055f, 0.032f, 0.024f},
                  Smooth(0.0f, -0.25f, good + 0.1f * fine)) *
              (1 + 0.4f * fine);
  // The ground coat shows dark along the break.
  iron = Mix(iron, Vec3{0.012f, 0.012f, 0.016f}, Smooth(-0.035f, -0.006f, good) * 0.8f);
  s.albedo = Mix(iron, glaze, held);
  s.specular = Vec3{1, 1, 1} * Mix(0.02f, 0.05f, held);
  s.roughness = Mix(0.85f, 0.16f, held);
  Emboss(p, footprint, s, [&](float a, float b) {
    return 0.0009f * Smooth(-0.01f, 0.02f, Enamel(a, b)) + 0.0035f * Noise2(a * 3.3f, b * 4.1f);
  });
}

}  // namespace tarnwick::photo
