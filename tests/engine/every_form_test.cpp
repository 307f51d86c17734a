#include <gtest/gtest.h>

#include "engine/golden_cases.h"
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

}  // namespace
}  // namespace tarnwick::testing
