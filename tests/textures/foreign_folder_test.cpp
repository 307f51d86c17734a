// Textures and presets in a folder whose name is no ASCII and no UTF-8: on Windows its
// letter is one of the system's code page.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>

#include "base/native_path.h"
#include "presets/color_list.h"
#include "presets/preset_file.h"
#include "support/images.h"
#include "support/temp_folder.h"
#include "support/wash_bytes.h"
#include "textures/texture_catalogue.h"
#include "textures/texture_load.h"
#include "textures/thumbnail_file.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;

class ForeignFolder : public ::testing::Test {
 protected:
  ForeignFolder()
      : path_(temp_.Path() +
              "/\xDC"
              "bung") {}
  void SetUp() override {
    ASSERT_EQ(NameOfPath(PathOfName(path_)), path_) << "no such letter here: take another one";
    std::filesystem::create_directory(PathOfName(path_));
  }
  void Put(const std::string& name, const std::string& bytes) const {
    std::ofstream(path_ + "/" + name, std::ios::binary) << bytes;
  }

  const TempFolder temp_;
  const std::string path_;
};

TEST_F(ForeignFolder, TexturesAreListedLoadedAndShown) {
  const Bytes bytes = GrayWash(2, {10, 20, 30, 40});
  Put("\xC4hren.twk", std::string(bytes.begin(), bytes.end()));
  const auto names = ScanTextureNames(PathOfName(path_));
  ASSERT_THAT(names, ElementsAre("\xC4hren.twk"));

  RenderState state;
  state.documentWidth = state.renderWidth = 2;
  state.documentHeight = state.renderHeight = 2;
  EffectLayer layer;
  ASSERT_TRUE(LoadTexture(layer, state, path_ + "/" + names[0]));
  EXPECT_EQ(layer.textureWidth, 2);

  ThumbnailPicture picture(2, 1);
  const std::string thumbnail = ThumbnailPath(path_, names[0]);
  ASSERT_TRUE(WriteThumbnail(thumbnail, picture));
  EXPECT_TRUE(ReadThumbnail(thumbnail, {2, 1}));
}

TEST_F(ForeignFolder, PresetsAreSavedAndLoaded) {
  EffectSettings settings;
  SettingsSession links;
  settings.WashUse = 1;
  std::strcpy(settings.WashFileName1, "Barn.twk");
  settings.WashScale1 = 55;
  const auto file = PathOfName(path_ + "/Gr\xFCn.twkpst");
  ASSERT_EQ(SavePresetFile(file, PresetKind::kWash, settings, links), PresetSave::kSaved);
  settings.WashScale1 = 1;
  PresetSession session(links);
  ASSERT_EQ(LoadPresetFile(file, settings, session), PresetLoad::kLoaded);
  EXPECT_EQ(settings.WashScale1, 55);

  Put("R\xF6tlich.twkpst", "TarnwickStudi Press Preset;\nVersion 2;\n;\nrgtC Red Tones ;\n");
  const std::string names[] = {"R\xF6tlich.twkpst"};
  const auto records = ListColorPresets(PathOfName(path_), names);
  ASSERT_EQ(records.size(), 2U);
  EXPECT_THAT(records[1].categories, ElementsAre("Red Tones"));
}

}  // namespace
}  // namespace tarnwick::testing
