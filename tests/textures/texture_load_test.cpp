#include "textures/texture_load.h"

#include <gtest/gtest.h>

#include "engine/texture_offset.h"
#include "imaging/resample.h"
#include "support/images.h"
#include "support/temp_folder.h"
#include "support/wash_bytes.h"

namespace tarnwick::testing {
namespace {

struct Alerts : TextureAlerts {
  void TextureAlert(const std::string& text) override { alerts.push_back(text); }
  void TextureFault(const std::string& text) override { faults.push_back(text); }
  std::vector<std::string> alerts;
  std::vector<std::string> faults;
};

RenderState StateFor(int width, int height, Alerts* alerts = nullptr) {
  RenderState state;
  state.documentWidth = state.renderWidth = width;
  state.documentHeight = state.renderHeight = height;
  state.alerts = alerts;
  return state;
}

constexpr char kMissing[] = " is not presented or wrong";
constexpr char kUnreadable[] = " cannot to be rasterized";

const struct {
  const char* name;
  Bytes bytes;
  const char* alert;  // after the path
  int fileWidth, fileHeight;
  int width, height;  // for a document of 8 x 4
} kFiles[] = {
    {"no texture file", {1, 2, 3}, kMissing, 1000, 1000, 8, 8},
    {"too large", Joined(WashHeader(40000, 1, 1), StoredStream({1})), kMissing, 1000, 1000, 8, 8},
    // 4 x 2 covers 8 x 4 at a factor of 2; the stand-in is 2 x 4.
    {"a damaged wide one", WashHeader(4, 2, 1), kUnreadable, 4, 2, 4, 8},
    {"no width", WashHeader(0, 2, 1), kUnreadable, 1000, 1000, 8, 8},
    {"short", Joined(WashHeader(4, 2, 1), StoredStream(Bytes(5, 255))), nullptr, 4, 2, 8, 4},
    // 1 x 1 has to grow to 8 x 8.
    {"a dot", GrayWash(1, {255}), nullptr, 1, 1, 8, 8},
};

TEST(TextureLoad, StandInsAndAlerts) {
  const TempFolder folder;
  for (const auto& c : kFiles) {
    const std::string path = folder.Put("a.twk", c.bytes);
    for (const bool shown : {true, false}) {
      Alerts alerts;
      RenderState state = StateFor(8, 4, &alerts);
      state.showTextureAlerts = shown;
      EffectLayer layer;
      ASSERT_TRUE(LoadTexture(layer, state, path)) << c.name;
      EXPECT_EQ(layer.fileName, path);
      EXPECT_EQ(layer.textureWidth, c.fileWidth) << c.name;
      EXPECT_EQ(layer.textureHeight, c.fileHeight) << c.name;
      EXPECT_EQ(layer.texture->Width(), c.width) << c.name;
      EXPECT_EQ(layer.texture->Height(), c.height) << c.name;
      EXPECT_FALSE(layer.textureDirty);
      std::vector<std::string> wanted;
      if (shown && c.alert != nullptr) wanted = {"The file " + path + c.alert};
      EXPECT_EQ(alerts.alerts, wanted) << c.name;
      if (c.alert == nullptr) continue;
      EXPECT_EQ(StorageOf(*layer.texture), Bytes(layer.texture->store.bytes, 255)) << c.name;
    }
  }
}

// A 3 x 2 texture for a document of 3 x 2.
const struct {
  const char* name;
  std::uint8_t invert, flipVertical, flipHorizontal;
  int angle;
  int width;
  Bytes want;
} kTurns[] = {
    {"as it is", 0, 0, 0, 0, 3, {1, 2, 3, 4, 5, 6}},
    {"inverted", 1, 0, 0, 0, 3, {254, 253, 252, 251, 250, 249}},
    {"vertical mirrors", 0, 1, 0, 0, 3, {3, 2, 1, 6, 5, 4}},
    {"horizontal turns upside down", 0, 0, 1, 0, 3, {4, 5, 6, 1, 2, 3}},
    {"both are half a turn", 0, 1, 1, 180, 3, {1, 2, 3, 4, 5, 6}},
    {"a quarter", 0, 0, 0, 90, 2, {4, 1, 5, 2, 6, 3}},
    {"mirrored, then turned", 0, 1, 0, 90, 2, {6, 3, 5, 2, 4, 1}},
    {"three quarters", 0, 0, 0, 270, 2, {3, 6, 2, 5, 1, 4}},
    {"a full turn", 0, 0, 0, 360, 3, {1, 2, 3, 4, 5, 6}},
    {"one degree counts up", 0, 0, 0, 1, 2, {4, 1, 5, 2, 6, 3}},
    {"91 are two quarters", 0, 0, 0, 91, 3, {6, 5, 4, 3, 2, 1}},
    {"less than nothing", 0, 0, 0, -90, 3, {1, 2, 3, 4, 5, 6}},
};

TEST(TextureLoad, OrientsInOrder) {
  const TempFolder folder;
  const std::string path = folder.Put("a.twk", GrayWash(3, {1, 2, 3, 4, 5, 6}));
  for (const auto& c : kTurns) {
    RenderState state = StateFor(3, 2);
    EffectLayer layer;
    layer.invert = c.invert;
    layer.flipVertical = c.flipVertical;
    layer.flipHorizontal = c.flipHorizontal;
    layer.angle = c.angle;
    ASSERT_TRUE(LoadTexture(layer, state, path));
    EXPECT_EQ(layer.working->Width(), c.width) << c.name;
    EXPECT_EQ(StorageOf(*layer.working), c.want) << c.name;
  }
}

// 3 x 2 at 1.8 is 5 x 4: the picture may move by 2 and 2.
TEST(TextureLoad, LimitsAndCutsTheOffset) {
  const TempFolder folder;
  const Bytes samples = {10, 60, 110, 160, 210, 250};
  const std::string path = folder.Put("a.twk", GrayWash(3, samples));
  ImagePtr whole;
  ASSERT_TRUE(ResampleImage(whole, GrayOf(3, samples).get(), 1.8, 0));
  const Pnm full = InteriorOf(*whole);
  for (const auto& [asked, got] : {std::pair{-7, 0}, {0, 0}, {1, 1}, {99, 2}}) {
    RenderState state = StateFor(3, 2);
    EffectLayer layer;
    layer.scaleSetting = 200;
    layer.offsetX = asked;
    layer.offsetY = asked;
    ASSERT_TRUE(LoadTexture(layer, state, path));
    EXPECT_EQ(layer.offsetX, got);
    EXPECT_EQ(layer.offsetY, got);
    Pnm part{5 - got, 4 - got, 1, {}};
    for (int y = got; y < 4; ++y) {
      const auto row = full.samples.begin() + 5 * y;
      part.samples.insert(part.samples.end(), row + got, row + 5);
    }
    EXPECT_EQ(FirstDifference(InteriorOf(*layer.working), part), "") << asked;
  }
}

TEST(TextureLoad, ReadsThePlaneThatCounts) {
  const TempFolder folder;
  RenderState state = StateFor(2, 1);
  EffectLayer layer;
  layer.angle = 90;
  ASSERT_TRUE(LoadTexture(
      layer, state,
      folder.Put("a.twk", Joined(WashHeader(2, 1, 3), StoredStream({7, 8, 1, 1, 2, 2})))));
  EXPECT_EQ(InteriorOf(*layer.working).samples, Bytes({7, 8}));
}

const struct {
  const char* name;
  Rect texture;
  int x, y, dx, dy;
  int newX, newY;
  bool canMove;
} kMoves[] = {
    {"inside", {0, 0, 30, 40}, 5, 5, 3, -2, 8, 3, true},
    {"to the far ends", {0, 0, 30, 40}, 5, 5, 1000, 1000, 30, 20, true},
    {"to the near ends", {0, 0, 30, 40}, 5, 5, -1000, -1000, 0, 0, true},
    {"a texture that was cut", {4, 6, 30, 40}, 6, 4, -3, -3, 6, 4, true},
    {"a smaller texture: the far end wins", {0, 0, 8, 9}, 0, 0, 0, 0, -1, -2, true},
    {"256 reads as fixed", {0, 0, 266, 266}, 0, 0, 5, 5, 5, 5, false},
    {"beyond 32 bits", {0, 0, 30, 40}, 2147483647, 5, 2147483647, 0, 30, 5, true},
};

TEST(TextureOffset, StaysOnTheTexture) {
  for (const auto& c : kMoves) {
    RenderState state = StateFor(10, 10);
    EffectLayer layer;
    layer.texture = MakeGrayImage(c.texture, 0);
    layer.offsetX = c.x;
    layer.offsetY = c.y;
    layer.textureDirty = false;
    MoveOffset(layer, state, c.dx, c.dy);
    EXPECT_EQ(layer.offsetX, c.newX) << c.name;
    EXPECT_EQ(layer.offsetY, c.newY) << c.name;
    EXPECT_TRUE(layer.textureDirty) << c.name;
    const OffsetRange range = GetOffset(layer, state);
    EXPECT_EQ(range.rangeX, c.texture.right - 10) << c.name;
    EXPECT_EQ(range.rangeY, c.texture.bottom - 10) << c.name;
    EXPECT_EQ(range.canMove, c.canMove) << c.name;
  }
}

}  // namespace
}  // namespace tarnwick::testing
