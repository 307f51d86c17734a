#pragma once
#include <filesystem>
#include <vector>

#include "age_options.h"
#include "picture_formats.h"

namespace tarnwick {

// One input and where its result goes.
struct PlannedOutput {
  std::filesystem::path input;
  std::filesystem::path output;
  const PictureFormat* format = nullptr;
};

// Works out all results before any work is done; touches nothing.
//
// Errors  wrong use, when two inputs would give one result, when a result would
//         replace its own input without --force or another input at all, or
//         when its format cannot be written or its folder is not there.
[[nodiscard]] std::vector<PlannedOutput> PlanOutputs(const AgeOptions& options);

}  // namespace tarnwick
