#include "output_plan.h"

#include <map>
#include <system_error>

#include "cli_error.h"
#include "output_file.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

PlannedOutput PlanInFolder(const fs::path& input, const AgeOptions& options) {
  const std::string extension =
      options.format.empty() ? input.extension().string() : "." + options.format;
  fs::path name = input.stem();
  name += options.suffix;
  name += extension;
  const fs::path output = *options.outputFolder / name;
  if (options.format.empty() && FindFormat(extension) == nullptr) {
    FailUse(input.string(), "its result has no format that can be written",
            "give --format jpg, or another");
  }
  return {input, output, &FormatOf(output)};
}

bool SameFile(const fs::path& a, const fs::path& b) {
  std::error_code fault;
  return fs::equivalent(a, b, fault) && !fault;
}

// One spelling for one place, whether or not the file is there yet.
std::string PlaceOf(const fs::path& path) {
  std::error_code fault;
  const fs::path place = fs::weakly_canonical(fs::absolute(path, fault), fault);
  return fault ? path.string() : place.string();
}

void RequireDistinct(const std::vector<PlannedOutput>& plan) {
  std::map<std::string, const PlannedOutput*> taken;
  for (const PlannedOutput& item : plan) {
    const auto [entry, isNew] = taken.emplace(PlaceOf(item.output), &item);
    if (isNew) continue;
    FailUse(item.output.string(),
            "would be the result of both " + entry->second->input.string() + " and " +
                item.input.string(),
            "age them into different folders");
  }
}

void ProtectInputs(const std::vector<PlannedOutput>& plan, const AgeOptions& options) {
  for (const PlannedOutput& item : plan) {
    for (const PlannedOutput& other : plan) {
      if (!SameFile(item.output, other.input)) continue;
      if (&item != &other) {
        FailUse(item.output.string(),
                "is an input itself and would be replaced by the result of " + item.input.string(),
                "choose another name");
      }
      if (!options.force) {
        FailUse(item.output.string(), "is the input itself",
                "choose another name, or give --force to replace it");
      }
    }
    if (options.selection && SameFile(item.output, *options.selection)) {
      FailUse(item.output.string(), "is the selection", "choose another name");
    }
  }
}

}  // namespace

std::vector<PlannedOutput> PlanOutputs(const AgeOptions& options) {
  std::vector<PlannedOutput> plan;
  for (const fs::path& input : options.inputs) {
    if (options.outputFolder) {
      plan.push_back(PlanInFolder(input, options));
    } else {
      RequireWritableTarget(*options.output);
      plan.push_back({input, *options.output, &FormatOf(*options.output)});
    }
  }
  RequireDistinct(plan);
  ProtectInputs(plan, options);
  return plan;
}

}  // namespace tarnwick
