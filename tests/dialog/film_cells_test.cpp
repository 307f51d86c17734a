#include "dialog/models/film_cells.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <iterator>

#include "settings/settings_access.h"
#include "support/temp_folder.h"
#include "support/wash_bytes.h"
#include "textures/thumbnail_file.h"

namespace tarnwick::testing {
namespace {

constexpr int kSide = 61;
// Of the texture: the middle 244 by 244 are seen, every fourth sample.
constexpr int kTextureWidth = 300, kTextureHeight = 264;

int GreyAt(int x, int y) {
  return (x * 3 + y * 7) % 256;
}

Bytes Texture() {
  Bytes samples;
  for (int y = 0; y < kTextureHeight; ++y) {
    for (int x = 0; x < kTextureWidth; ++x) {
      samples.push_back(static_cast<std::uint8_t>(GreyAt(x, y)));
    }
  }
  return GrayWash(kTextureWidth, samples);
}

// A look: its texture upside down in light, in three tones.
void ReadLook(EffectSettings& settings) {
  StoreTextureName(settings.BackgroundFileName, "Dusk.twk");
  settings.BackgroundInvert = 1;
  settings.BackgroundHue = 0;
  settings.BackgroundHighlight = settings.BackgroundMidtone = settings.BackgroundShadow = 100;
  settings.BackgroundShadowColor = 0x1E140A;
  settings.BackgroundMidtoneColor = 0x8C7864;
  settings.BackgroundHighlightColor = 0xE6F0FA;
}

int ModelSample(int x, int y, int channel) {
  constexpr float kShadow[] = {10, 20, 30}, kMiddle[] = {100, 120, 140}, kLight[] = {250, 240, 230};
  const int grey = 255 - GreyAt(28 + 4 * x, 10 + 4 * y);
  const float v = static_cast<float>(grey) / 255.0F;
  const float t = v <= 0.65F ? (0.65F - v) * 1.5384616F : (v - 0.65F) * 2.857143F;
  const float outer = v <= 0.65F ? kShadow[channel] : kLight[channel];
  return static_cast<int>(outer * t + kMiddle[channel] * (1.0F - t));
}

// A folder with the texture, settings of a user at work, and a count of what is read.
class FilmCells : public ::testing::Test {
 protected:
  FilmCells() {
    folder_.Put("Dusk.twk", Texture());
    StoreTextureName(settings_.BackgroundFileName, "Own.twk");
    session_.BackgroundColorCategory = "Moss";
    before_ = settings_;
  }

  std::optional<ThumbnailPicture> Cell(const char* name, bool isThere = true) {
    return LoadOrMakeFilmCell({name, Cache(), folder_.Path()}, settings_, session_,
                              [&](std::string_view asked) {
                                ++reads_;
                                EXPECT_EQ(asked, name);
                                session_.BackgroundColorCategory = "Custom";
                                session_.BackgroundLinked = 1;
                                ReadLook(settings_);
                                return isThere;
                              });
  }
  [[nodiscard]] std::string Cache() const { return folder_.Path() + "/Dusk.bmp"; }
  [[nodiscard]] bool IsAsBefore() const {
    return std::memcmp(&settings_, &before_, sizeof before_) == 0 &&
           session_.BackgroundColorCategory == "Moss" && session_.BackgroundLinked == 0;
  }

  TempFolder folder_;
  EffectSettings settings_, before_;
  SettingsSession session_;
  int reads_ = 0;
};

TEST_F(FilmCells, AreMadeOnceAndKept) {
  const auto made = Cell("Dusk");
  ASSERT_TRUE(made.has_value());
  ASSERT_EQ(made->width, kSide);
  ASSERT_EQ(made->height, kSide);
  for (int y = 0; y < kSide; ++y) {
    for (int x = 0; x < kSide; ++x) {
      for (int c = 0; c < 3; ++c) {
        ASSERT_EQ(made->samples[static_cast<std::size_t>((y * kSide + x) * 3 + c)],
                  ModelSample(x, y, c))
            << x << ' ' << y << ' ' << c;
      }
    }
  }
  EXPECT_TRUE(IsAsBefore());
  const auto kept = Cell("Dusk");
  ASSERT_TRUE(kept.has_value());
  EXPECT_EQ(kept->samples, made->samples);
  EXPECT_EQ(reads_, 1);
}

// The bitmap is trusted as it stands; only one that cannot be a cell is made anew.
TEST_F(FilmCells, TrustTheirBitmapButForItsSize) {
  ThumbnailPicture own(kSide, kSide);
  own.samples[0] = 77;
  ASSERT_TRUE(WriteThumbnail(Cache(), own));
  EXPECT_EQ(Cell("Dusk")->samples, own.samples);
  EXPECT_EQ(reads_, 0);

  ASSERT_TRUE(WriteThumbnail(Cache(), ThumbnailPicture(kSide, kSide - 1)));
  EXPECT_EQ(Cell("Dusk")->samples[0], ModelSample(0, 0, 0));
  EXPECT_EQ(reads_, 1);
  EXPECT_TRUE(ReadThumbnail(Cache(), kFilmstripThumbnail).has_value());

  folder_.Put("Dusk.bmp", Bytes{'B', 'M', 1, 2, 3});
  EXPECT_TRUE(Cell("Dusk").has_value());
  EXPECT_EQ(reads_, 2);
}

TEST_F(FilmCells, WithoutALookOrItsTextureThereIsNone) {
  EXPECT_FALSE(Cell("Dusk", false));
  EXPECT_TRUE(IsAsBefore());
  std::filesystem::remove(folder_.Path() + "/Dusk.twk");
  EXPECT_FALSE(Cell("Dusk"));
  EXPECT_TRUE(IsAsBefore());
  EXPECT_FALSE(std::filesystem::exists(Cache())) << "nothing to keep";
}

TEST_F(FilmCells, NoneIsACrossedBox) {
  // Of a file by its name nothing is looked at.
  ASSERT_TRUE(WriteThumbnail(Cache(), ThumbnailPicture(kSide, kSide)));
  const auto cell = Cell("NONE");
  ASSERT_TRUE(cell.has_value());
  ASSERT_EQ(cell->width, kSide);
  const auto at = [&](int x, int y) {
    return cell->samples[static_cast<std::size_t>((y * kSide + x) * 3)];
  };
  for (int i = 0; i < kSide; ++i) {
    for (const int grey : {at(i, 0), at(i, 60), at(0, i), at(60, i), at(i, i), at(60 - i, i)}) {
      ASSERT_EQ(grey, 192) << i;
    }
  }
  EXPECT_EQ(at(30, 10), 128);
  EXPECT_EQ(at(10, 30), 128);
  EXPECT_EQ(reads_, 0);
}

}  // namespace
}  // namespace tarnwick::testing
