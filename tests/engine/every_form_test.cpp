#include <gtest/gtest.h>

#include "engine/golden_cases.h"
#include "engine/random_settings.h"
#include "engine/reference_render.h"
#include "engine/stepped_render.h"

namespace tarnwick::testing {
namespace {

void ExpectEveryForm(const std::string& kind) {
  for (const std::string& name : GoldenCases(kind)) {
    const GoldenCase golden(GoldenFolder() + kind + "/" + name);
    for (const Form& form : AllForms()) {
      EffectSettings settings = golden.settings;
      Pnm out;
      const PictureJob job = golden.Job(out);
      SteppedRender render(job, form, kind == "preview" ? &golden.window : nullptr);
      if (golden.window.view == ViewMode::kOriginal) continue;
      render.Run(settings, golden.session);
      ASSERT_EQ(FirstDifference(out, golden.wanted), "") << name << ' ' << form;
    }
  }
}

TEST(EveryForm, RendersTheRecordedPictures) {
  ExpectEveryForm("render");
}

TEST(EveryForm, RendersTheRecordedPreviews) {
  ExpectEveryForm("preview");
}

// A random picture, opaque or not, with or without a selection.
struct RandomPicture {
  RandomPicture(TestRandom& random, int width, int height)
      : planes(3 + random.Below(2)),
        in{width, height, planes, random.Shaped(static_cast<std::size_t>(width * height * planes))},
        out(in) {
    if (random.Coin()) selection = random.Shaped(static_cast<std::size_t>(width * height));
  }
  PictureJob Job() {
    PictureJob job;
    job.width = in.width;
    job.height = in.height;
    job.planes = planes;
    job.in = in.samples.data();
    job.out = out.samples.data();
    job.inRowBytes = job.outRowBytes = static_cast<std::ptrdiff_t>(in.width) * planes;
    job.selection = selection.empty() ? nullptr : selection.data();
    job.selectionRowBytes = in.width;
    job.textureFolder = GoldenFolder() + "textures";
    return job;
  }
  int planes;
  Pnm in;
  Pnm out;
  Bytes selection;
};

TEST(EveryForm, EqualsTheDefinitionWhateverIsSet) {
  TestRandom random(5);
  for (int round = 0; round < 3 * 67; ++round) {
    const int width = 1 + round % 67;
    const int height = 1 + random.Below(60);
    RandomPicture picture(random, width, height);
    const EffectSettings drawn = RandomSettings(random);
    Bytes wanted;
    for (const Form& form : AllForms()) {
      EffectSettings settings = drawn;
      SteppedRender render(picture.Job(), form);
      render.Run(settings, SettingsSession{});
      if (wanted.empty()) wanted = ReferenceRender(render, settings);
      const Pnm got{width, height, 4, render.after["background"]};
      ASSERT_EQ(FirstDifference(got, {width, height, 4, wanted}), "")
          << "round " << round << ' ' << form;
    }
  }
}

}  // namespace
}  // namespace tarnwick::testing
