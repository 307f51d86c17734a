// The looks of the presets that come with the program, on photographs of all
// kinds.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numeric>
#include <string>
#include <vector>

#include "engine/apply_run.h"
#include "engine/surface_types.h"
#include "engine/wash_types.h"
#include "settings/settings_access.h"
#include "shipped_presets.h"
#include "small_library.h"

namespace tarnwick::content {
namespace {

// Small stand-ins for photographs: a house before a sky, as shot and too dark
// or too bright by far.
struct Scene {
  const char* name;
  int black, white;  // the range of tones it uses
};
constexpr Scene kScenes[] = {{"day", 0, 255}, {"night", 0, 90}, {"snow", 150, 255}};
constexpr int kWidth = 180, kHeight = 120;

using Pixels = std::vector<std::uint8_t>;

Pixels Photograph(const Scene& scene) {
  constexpr int kSky[] = {150, 185, 225}, kWall[] = {150, 50, 40}, kGrass[] = {80, 105, 45};
  constexpr int kDoor[] = {25, 35, 40};
  Pixels pixels;
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      const bool wall = x >= 40 && x < 120 && y >= 45 - std::min(x - 40, 119 - x) / 2 && y < 95;
      const bool door = x >= 65 && x < 90 && y >= 55 && y < 95;
      const int* color = door ? kDoor : wall ? kWall : y > 75 ? kGrass : kSky;
      for (int channel = 0; channel < 3; ++channel) {
        // Some grain and a fall of light, as no photograph is flat.
        const int tone = color[channel] + (x * 7 + y * 13) % 17 - 8 + x / 9 - y / 9;
        pixels.push_back(static_cast<std::uint8_t>(
            scene.black + std::clamp(tone, 0, 255) * (scene.white - scene.black) / 255));
      }
    }
  }
  return pixels;
}

Pixels Aged(const Pixels& photograph, Look look, const SmallLibrary& library) {
  Pixels out(photograph.size());
  PictureJob job;
  job.width = kWidth;
  job.height = kHeight;
  job.in = photograph.data();
  job.inRowBytes = kWidth * 3;
  job.out = out.data();
  job.outRowBytes = kWidth * 3;
  job.textureFolder = library.Folder();
  EXPECT_EQ(ApplyToPicture(look.settings, look.session, job), ApplyOutcome::kDone);
  return out;
}

// Mean difference of the samples, in levels.
double Difference(const Pixels& a, const Pixels& b) {
  int sum = 0;
  for (std::size_t i = 0; i < a.size(); ++i) sum += std::abs(a[i] - b[i]);
  return static_cast<double>(sum) / static_cast<double>(a.size());
}

// A picture from afar: the mean brightness of its blocks. Closer, the relief of
// textures painted as small as these would drown everything.
std::vector<double> FromAfar(const Pixels& pixels) {
  constexpr int kBlock = 12, kAcross = kWidth / kBlock;
  std::vector<double> blocks(static_cast<std::size_t>(kAcross * (kHeight / kBlock)));
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      const auto at = static_cast<std::size_t>((y * kWidth + x) * 3);
      blocks[static_cast<std::size_t>(y / kBlock * kAcross + x / kBlock)] +=
          (pixels[at] + pixels[at + 1] + pixels[at + 2]) / (3.0 * kBlock * kBlock);
    }
  }
  return blocks;
}

// A picture without features, as light as the other.
Pixels FlatLike(const Pixels& photograph) {
  std::array<double, 3> sum = {};
  for (std::size_t i = 0; i < photograph.size(); ++i) sum[i % 3] += photograph[i];
  Pixels flat(photograph.size());
  for (std::size_t i = 0; i < flat.size(); ++i) {
    flat[i] = static_cast<std::uint8_t>(sum[i % 3] * 3 / static_cast<double>(flat.size()));
  }
  return flat;
}

// How well the photograph is recognised in a look: what it makes of the features
// apart from what it makes of a flat picture. `correlation` is 1 for all of them
// in their proportions, `contrast` 1 for as strong as they were.
struct Recognition {
  double correlation, contrast;
};
Recognition Recognise(const Pixels& photograph, const Pixels& aged, const Pixels& agedFlat) {
  const std::vector<double> in = FromAfar(photograph);
  std::vector<double> out = FromAfar(aged);
  const std::vector<double> flat = FromAfar(agedFlat);
  for (std::size_t i = 0; i < out.size(); ++i) out[i] -= flat[i];
  const auto n = static_cast<double>(in.size());
  const double meanIn = std::accumulate(in.begin(), in.end(), 0.0) / n;
  const double meanOut = std::accumulate(out.begin(), out.end(), 0.0) / n;
  double inIn = 0, outOut = 0, inOut = 0;
  for (std::size_t i = 0; i < in.size(); ++i) {
    inIn += (in[i] - meanIn) * (in[i] - meanIn);
    outOut += (out[i] - meanOut) * (out[i] - meanOut);
    inOut += (in[i] - meanIn) * (out[i] - meanOut);
  }
  return {inOut / std::sqrt(inIn * outOut), std::sqrt(outOut / inIn)};
}

// Tones are judged where they colour the picture.
Look Judged(const Shipped& preset) {
  Look look = LookOf(preset);
  if (preset.folder == "Colors") look.settings.SurfaceType1 = kSurfaceColorize;
  return look;
}

TEST(PresetLooks, ChangeAnyPhotographAndLeaveItRecognisable) {
  const SmallLibrary library;
  for (const Scene& scene : kScenes) {
    const Pixels photograph = Photograph(scene);
    const Pixels flat = FlatLike(photograph);
    for (const Shipped& preset : ShippedPresets()) {
      SCOPED_TRACE(preset.name + " on " + scene.name);
      const Look look = Judged(preset);
      const Pixels aged = Aged(photograph, look, library);
      EXPECT_GT(Difference(photograph, aged), 10.0);
      const Recognition left = Recognise(photograph, aged, Aged(flat, look, library));
      EXPECT_GT(left.correlation, 0.8);
      EXPECT_GT(left.contrast, 0.25);
    }
  }
}

// A ground shows where a wash has eaten the picture.
Look WhereItShows(const Shipped& preset) {
  Look look = Judged(preset);
  if (preset.folder == "Background" || preset.folder == "BackPalette") {
    StoreTextureName(look.settings.WashFileName1, kSolidTextureName);
    look.settings.WashType1 = kWashErosion;
    look.settings.WashInvert1 = 1;
    look.settings.WashIntensity1 = 200;
  }
  return look;
}

TEST(PresetLooks, NoTwoLookAlike) {
  const SmallLibrary library;
  const Pixels photograph = Photograph(kScenes[0]);
  std::map<std::string, Pixels> seen = {{"the defaults", Aged(photograph, DefaultLook(), library)}};
  for (const Shipped& preset : ShippedPresets()) {
    const Pixels aged = Aged(photograph, WhereItShows(preset), library);
    // What makes all of a look has to differ more than a share of it.
    const double enough = preset.folder == "Basic" ? 10.0 : 1.0;
    for (const auto& [name, other] : seen) {
      EXPECT_GT(Difference(aged, other), enough) << preset.name << " and " << name;
    }
    seen[preset.name] = aged;
  }
}

}  // namespace
}  // namespace tarnwick::content
