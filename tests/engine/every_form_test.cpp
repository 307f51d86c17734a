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

// Three forms, others each round; all pairs of width and form come up.
std::vector<Form> FormsOfRound(int round) {
  const std::vector<Form>& all = AllForms();
  std::vector<Form> some;
  for (std::size_t i = 0; i < 3; ++i) {
    some.push_back(all[(static_cast<std::size_t>(round) * 3 + i) % all.size()]);
  }
  return some;
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
    for (const Form& form : FormsOfRound(round)) {
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

TEST(EveryForm, PreviewsAgree) {
  TestRandom random(6);
  for (int round = 0; round < 100; ++round) {
    RandomPicture picture(random, 20 + random.Below(150), 20 + random.Below(150));
    const EffectSettings drawn = RandomSettings(random);
    PreviewWindow window;
    window.scale = 1 + random.Below(5);
    window.x = random.Below(20);
    window.y = random.Below(20);
    // Also beyond the picture.
    window.width = 1 + random.Below(67);
    window.height = 1 + random.Below(67);
    window.view = static_cast<ViewMode>(random.Below(6));
    PictureJob job = picture.Job();
    Pnm wanted;
    for (const Form& form : FormsOfRound(round)) {
      Pnm out{window.width, window.height, picture.planes, {}};
      out.samples.resize(static_cast<std::size_t>(out.width * out.height * out.planes));
      job.out = out.samples.data();
      job.outRowBytes = static_cast<std::ptrdiff_t>(out.width) * out.planes;
      EffectSettings settings = drawn;
      SteppedRender render(job, form, &window);
      render.Run(settings, SettingsSession{});
      if (wanted.samples.empty()) wanted = out;
      ASSERT_EQ(FirstDifference(out, wanted), "") << "round " << round << ' ' << form;
    }
  }
}

}  // namespace
}  // namespace tarnwick::testing
