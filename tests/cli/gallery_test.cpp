#include <gtest/gtest.h>

#include <cstdlib>

#include "gallery_looks.h"
#include "gallery_page.h"
#include "gallery_pictures.h"

namespace tarnwick {
namespace {

PresetEntry Entry(PresetKind kind, const char* name) {
  return {kind, name, name};
}

// On a file system that ignores case, two names of one spelling would be one
// picture.
TEST(Gallery, IdsDiffer) {
  const PresetEntry entries[] = {
      Entry(PresetKind::kBasic, "Old Barn"),    Entry(PresetKind::kBasic, "old-barn"),
      Entry(PresetKind::kBasic, "old-barn 2"),  Entry(PresetKind::kBasic, "OLD/BARN"),
      Entry(PresetKind::kUser, "Old Barn"),     Entry(PresetKind::kUser, "\xE6\x97\xA5"),
      Entry(PresetKind::kUser, "\xE6\x9C\xAC"),
  };
  const std::vector<std::string> want = {"basic-old-barn",
                                         "basic-old-barn-2",
                                         "basic-old-barn-2-2",
                                         "basic-old-barn-3",
                                         "user-old-barn",
                                         "user",
                                         "user-2"};
  EXPECT_EQ(LookIds(entries), want);
}

// Against a search through all scales.
TEST(Gallery, ScaleComesNearestToTheSide) {
  for (const int wanted : {200, 480, 1600}) {
    for (int side = 1; side < 20'000; side = side * 9 / 8 + 1) {
      int best = 1;
      for (int scale = 2; scale <= side; ++scale) {
        if (std::abs(side / scale - wanted) < std::abs(side / best - wanted)) best = scale;
      }
      ASSERT_EQ(ScaleFor(side, 1, wanted), best) << side << " to " << wanted;
      ASSERT_EQ(ScaleFor(side / 2, side, wanted), best) << side << " to " << wanted;
    }
  }
}

TEST(Gallery, CommandLines) {
  using Kind = AgeStep::Kind;
  const struct {
    const char* name;
    std::vector<std::string> dataWords;
    std::string photo;
    std::vector<AgeStep> steps;
    std::string want;
  } kCases[] = {
      {"in the folder of the photograph",
       {},
       "barn.jpg",
       {{Kind::kPreset, "Tin"}},
       "tarnwick age --preset Tin -o 'barn - Look.jpg' barn.jpg"},
      {"a library that was named",
       {"--data", "my data"},
       "a/barn.PNG",
       {{Kind::kSet, "WashUse=0"}, {Kind::kSurfaceColors, "Tin"}},
       "tarnwick age --data 'my data' --set WashUse=0 --surface-colors Tin "
       "-o 'barn - Look.PNG' a/barn.PNG"},
      {"a photograph that looks like an option, of a kind that is only read",
       {},
       "-o.gifx",
       {{Kind::kPreset, "Tin"}},
       "tarnwick age --preset Tin -o '-o - Look.jpg' -- -o.gifx"},
  };
  for (const auto& c : kCases) {
    GalleryPage page;
    page.dataWords = c.dataWords;
    page.photo = c.photo;
    GalleryLook look;
    look.name = "Look";
    look.steps = c.steps;
    EXPECT_EQ(LookCommand(page, look), c.want) << c.name;
  }
}

}  // namespace
}  // namespace tarnwick
