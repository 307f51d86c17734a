#pragma once
#include <string>
#include <vector>

#include "engine/apply_run.h"
#include "support/pnm.h"

namespace tarnwick::testing {

// The recorded pictures under tests/data/golden: what a run makes of an input,
// from an implementation that shares nothing with this one.

[[nodiscard]] std::string GoldenFolder();
// The folders under render/ or preview/, sorted.
[[nodiscard]] std::vector<std::string> GoldenCases(const std::string& kind);

struct GoldenCase {
  Pnm input;      // 3 planes, or 4 with alpha
  Pnm selection;  // without samples: none
  Pnm wanted;
  EffectSettings settings;
  SettingsSession session;
  PreviewWindow window;  // of a preview

  explicit GoldenCase(const std::string& folder);
  // The job that renders into `out`, which takes the size of `wanted`.
  [[nodiscard]] PictureJob Job(Pnm& out) const;
};

}  // namespace tarnwick::testing
