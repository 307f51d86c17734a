#include "engine/random_settings.h"

#include <cstdio>

namespace tarnwick::testing {
namespace {

class Draw {
 public:
  explicit Draw(TestRandom& random) : random_(random) {}

  std::uint8_t Flag() { return random_.Coin() ? 1 : 0; }
  std::uint32_t Color() {
    return random_.Byte() | std::uint32_t{random_.Byte()} << 8 |
           std::uint32_t{random_.Byte()} << 16;
  }
  // The least, the greatest, `usual`, or any.
  int Number(int least, int greatest, int usual) {
    switch (random_.Below(4)) {
      case 0:
        return random_.Coin() ? least : greatest;
      case 1:
        return usual;
      default:
        return least + random_.Below(greatest - least + 1);
    }
  }
  int Angle() { return 90 * random_.Below(5); }
  void Texture(char (&name)[kTextureNameSize]) {
    static constexpr const char* kNames[] = {"General_Store", "Rusted",     "Scratched", "Ramp",
                                             "Battleship",    "No_Texture", "Colour",    "Dot",
                                             "Tall",          "Wide",       "Damaged",   "Solid"};
    std::snprintf(name, sizeof name, "%s.twk", kNames[random_.Below(12)]);
  }

 private:
  TestRandom& random_;
};

}  // namespace

EffectSettings RandomSettings(TestRandom& random) {
  Draw draw(random);
  EffectSettings s;
  s.SecondWashExists = draw.Flag();
  draw.Texture(s.WashFileName1);
  draw.Texture(s.WashFileName2);
  const auto wash = [&](int& scale, int& intensity, std::uint8_t& horizontal,
                        std::uint8_t& vertical, std::uint8_t& invert, int& angle) {
    scale = draw.Number(0, 200, 100);
    intensity = draw.Number(0, 200, 100);
    horizontal = draw.Flag();
    vertical = draw.Flag();
    invert = draw.Flag();
    angle = draw.Angle();
  };
  wash(s.WashScale1, s.WashIntensity1, s.WashFlipHor1, s.WashFlipVer1, s.WashInvert1, s.WashAngle1);
  wash(s.WashScale2, s.WashIntensity2, s.WashFlipHor2, s.WashFlipVer2, s.WashInvert2, s.WashAngle2);
  s.WashCoverage1 = draw.Number(-100, 100, 0);
  s.WashCoverage2 = draw.Number(-100, 100, 0);
  s.WashCoverageScale1 = draw.Number(0, 200, 100);
  s.WashCoverageScale2 = draw.Number(0, 200, 100);
  s.WashEdgeDistance1 = draw.Number(0, 100, 0);
  s.WashEdgeDistance2 = draw.Number(0, 100, 0);
  s.WashEdgeSoftness1 = draw.Number(0, 300, 0);
  s.WashEdgeSoftness2 = draw.Number(0, 300, 0);
  s.WashInside1 = draw.Flag();
  s.WashInside2 = 1;
  s.WashRandomize1 = draw.Number(0, 99999, 123);
  s.WashRandomize2 = draw.Number(0, 99999, 123);
  s.WashStainColor1 = draw.Color();
  s.WashStainColor2 = draw.Color();
  s.WashType1 = static_cast<std::uint8_t>(draw.Number(0, 4, 1));
  s.WashType2 = static_cast<std::uint8_t>(draw.Number(0, 4, 1));

  draw.Texture(s.BackgroundFileName);
  s.BackgroundEntire = draw.Flag();
  s.BackgroundScale = draw.Number(0, 200, 100);
  s.BackgroundAngle = draw.Angle();
  s.BackgroundInvert = draw.Flag();
  s.BackgroundMidtone = draw.Number(0, 200, 100);
  s.BackgroundHue = draw.Number(-100, 100, 0);
  s.BackgroundEnhancedMode = draw.Flag();
  s.BackgroundHighlightColor = draw.Color();
  s.BackgroundMidtoneColor = draw.Color();
  s.BackgroundShadowColor = draw.Color();

  s.SurfaceEntire = draw.Flag();
  s.SurfaceIncludeWashArea = draw.Flag();
  s.SecondSurfaceExists = draw.Flag();
  draw.Texture(s.SurfaceFileName1);
  draw.Texture(s.SurfaceFileName2);
  s.SurfaceDepth1 = draw.Number(0, 100, 30);
  s.SurfaceDepth2 = draw.Number(0, 100, 30);
  s.SurfaceScale1 = draw.Number(0, 200, 100);
  s.SurfaceAngle1 = draw.Angle();
  s.SurfaceBrightness = draw.Number(0, 200, 100);
  s.SurfaceContrast = draw.Number(0, 200, 100);
  s.SurfaceHue = draw.Number(-100, 100, 0);
  s.SurfaceIntensity = draw.Number(0, 100, 100);
  s.SurfaceType1 = static_cast<std::uint8_t>(draw.Number(0, 8, 0));
  s.SurfacePerspectiveOn = draw.Flag();
  s.SurfaceMidtone = draw.Number(0, 100, 50);
  s.SurfaceLightAlpha = static_cast<float>(draw.Number(-360, 360, 45));
  s.SurfaceLightBeta = static_cast<float>(draw.Number(0, 180, 40));
  s.SurfaceHighlightColor = draw.Color();
  s.SurfaceMidtoneColor = draw.Color();
  s.SurfaceShadowColor = draw.Color();
  const auto offset = [&](int& x, int& y) {
    x = draw.Number(-5, 40, 0);
    y = draw.Number(-5, 40, 0);
  };
  offset(s.WashOffsetX1, s.WashOffsetY1);
  offset(s.SurfaceOffsetX1, s.SurfaceOffsetY1);
  offset(s.BackgroundOffsetX, s.BackgroundOffsetY);
  return s;
}

}  // namespace tarnwick::testing
