#include "texture_sets.h"

#include <vector>

#include "cli_error.h"
#include "did_you_mean.h"
#include "text_table.h"

namespace tarnwick {

TextureSetTable LoadSetsOf(const std::filesystem::path& folder, Console& console) {
  TextureSetTable sets;
  std::vector<SetTableFault> faults;
  const std::filesystem::path path = folder / kTextureSetFile;
  (void)LoadTextureSets(path, sets, faults);
  for (const SetTableFault& fault : faults) {
    console.Warning(path.string() + ":" + std::to_string(fault.line) + ": " + fault.text);
  }
  return sets;
}

std::string SetLabel(const TextureSetTable& sets, std::uint32_t id) {
  const std::string name = FindSetName(sets, id);
  return name.empty() ? std::to_string(id) : name;
}

std::uint32_t RequireSet(const TextureSetTable& sets, const std::string& name,
                         const std::string& option) {
  const int row = FindSetRow(sets, name);
  if (row > 0) return sets[static_cast<std::size_t>(row) - 1].id;
  if (sets.empty()) {
    FailUse(option, std::string("the folder of textures has no ") + kTextureSetFile,
            "choose by --set-id N");
  }
  std::vector<std::string> names;
  for (const TextureSetEntry& set : sets) names.push_back(set.name);
  FailUse(option, "no set is called \"" + name + "\"",
          DidYouMean(name, names, "one of " + JoinNames(names)));
}

}  // namespace tarnwick
