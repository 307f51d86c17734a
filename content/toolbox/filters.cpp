#include "toolbox/filters.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "toolbox/maths.h"

namespace tarnwick::content {
namespace {

// Mean of 2 * radius + 1 samples of a line of `count`, `step` floats apart.
void BoxLine(const float* in, float* out, int count, int radius) {
  const float share = 1.0F / static_cast<float>(2 * radius + 1);
  // Doubles: a running sum in floats drifts over a long line.
  double sum = static_cast<double>(in[0]) * (radius + 1);
  for (int i = 1; i <= radius; ++i) sum += in[std::min(i, count - 1)];
  for (int i = 0; i < count; ++i) {
    out[i] = static_cast<float>(sum) * share;
    sum += in[std::min(i + radius + 1, count - 1)];
    sum -= in[std::max(i - radius, 0)];
  }
}

void BoxRows(const Sheet& sheet, Field& field, int radius) {
  const int width = field.Width();
  ForRows(sheet.pool, 0, field.Height(), [&](int first, int last) {
    std::vector<float> line(static_cast<std::size_t>(width));
    for (int y = first; y < last; ++y) {
      float* row = field.Row(y);
      BoxLine(row, line.data(), width, radius);
      std::copy(line.begin(), line.end(), row);
    }
  });
}

Field Transposed(const Sheet& sheet, const Field& field) {
  Field turned(field.Height(), field.Width());
  ForRows(sheet.pool, 0, turned.Height(), [&](int first, int last) {
    constexpr int kTile = 32;
    for (int y0 = 0; y0 < field.Height(); y0 += kTile) {
      for (int x = first; x < last; ++x) {
        float* row = turned.Row(x);
        for (int y = y0; y < std::min(y0 + kTile, field.Height()); ++y) row[y] = field(x, y);
      }
    }
  });
  return turned;
}

// Squared distances along one line, given those across it: the lower envelope
// of a parabola over each sample.
void EnvelopeLine(const float* in, float* out, int count, std::vector<int>& apex,
                  std::vector<float>& from) {
  int top = 0;
  apex[0] = 0;
  from[0] = -1e20F;
  from[1] = 1e20F;
  for (int q = 1; q < count; ++q) {
    float meet = 0.0F;
    for (;;) {
      const int p = apex[static_cast<std::size_t>(top)];
      const float fq = static_cast<float>(q);
      const float fp = static_cast<float>(p);
      meet = ((in[q] + fq * fq) - (in[p] + fp * fp)) / (2.0F * (fq - fp));
      if (meet > from[static_cast<std::size_t>(top)] || top == 0) break;
      --top;
    }
    if (meet <= from[static_cast<std::size_t>(top)]) {
      apex[static_cast<std::size_t>(top)] = q;
    } else {
      ++top;
      apex[static_cast<std::size_t>(top)] = q;
      from[static_cast<std::size_t>(top)] = meet;
    }
    from[static_cast<std::size_t>(top) + 1] = 1e20F;
  }
  int k = 0;
  for (int q = 0; q < count; ++q) {
    while (from[static_cast<std::size_t>(k) + 1] < static_cast<float>(q)) ++k;
    const int p = apex[static_cast<std::size_t>(k)];
    const float d = static_cast<float>(q - p);
    out[q] = d * d + in[p];
  }
}

void EnvelopeRows(const Sheet& sheet, Field& field) {
  const std::size_t width = static_cast<std::size_t>(field.Width());
  ForRows(sheet.pool, 0, field.Height(), [&](int first, int last) {
    std::vector<int> apex(width);
    std::vector<float> from(width + 1);
    std::vector<float> line(width);
    for (int y = first; y < last; ++y) {
      float* row = field.Row(y);
      EnvelopeLine(row, line.data(), field.Width(), apex, from);
      std::copy(line.begin(), line.end(), row);
    }
  });
}

}  // namespace

void Blur(const Sheet& sheet, Field& field, float radius) {
  if (field.Width() == 0 || field.Height() == 0) return;
  // Three boxes of half-width r spread by sqrt(r * (r + 1)).
  const int r = FloorInt(Sqrt(radius * radius + 0.25F));
  if (r < 1) return;
  for (int i = 0; i < 3; ++i) BoxRows(sheet, field, r);
  Field turned = Transposed(sheet, field);
  for (int i = 0; i < 3; ++i) BoxRows(sheet, turned, r);
  field = Transposed(sheet, turned);
}

void Soften(const Sheet& sheet, Field& field, float share) {
  const Field sharp = field;
  Repaint(sheet, field, [&](Spot p) {
    const float beside = sharp.Clamped(p.x - 1, p.y) + sharp.Clamped(p.x + 1, p.y) +
                         sharp.Clamped(p.x, p.y - 1) + sharp.Clamped(p.x, p.y + 1);
    const float across = sharp.Clamped(p.x - 1, p.y - 1) + sharp.Clamped(p.x + 1, p.y - 1) +
                         sharp.Clamped(p.x - 1, p.y + 1) + sharp.Clamped(p.x + 1, p.y + 1);
    // 2 to 1, as in the binomial: a full share is the 1 2 1 filter both ways
    // without its middle.
    return Mix(sharp(p), (2.0F * beside + across) * (1.0F / 12.0F), share);
  });
}

Field DistanceTo(const Sheet& sheet, const Field& mask) {
  // "Nowhere" has to outweigh any distance within the picture, yet leave a
  // float enough bits for the squares added to it.
  constexpr float kNowhere = 1e12F;
  Field squares = Painted(sheet, [&](Spot p) { return mask(p) > 0.5F ? 0.0F : kNowhere; });
  EnvelopeRows(sheet, squares);
  Field turned = Transposed(sheet, squares);
  EnvelopeRows(sheet, turned);
  squares = Transposed(sheet, turned);
  Repaint(sheet, squares, [&](Spot p) {
    const float d = squares(p);
    return d > 0.5F * kNowhere ? 1e9F : Sqrt(d);
  });
  return squares;
}

Slope SlopeAt(const Field& height, int x, int y) {
  return {(height.Clamped(x + 1, y) - height.Clamped(x - 1, y)) * 0.5F,
          (height.Clamped(x, y + 1) - height.Clamped(x, y - 1)) * 0.5F};
}

Field Relief(const Sheet& sheet, const Field& height, float strength) {
  return Painted(sheet, [&](Spot p) {
    const Slope slope = SlopeAt(height, p.x, p.y);
    // A rise to the right and downwards faces the top left.
    const float toLight = (slope.x * 0.6F + slope.y * 0.8F) / strength;
    return toLight / (1.0F + Abs(toLight));
  });
}

}  // namespace tarnwick::content
