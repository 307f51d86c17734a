#include "preset_library.h"

#include <algorithm>
#include <system_error>

#include "cli_error.h"
#include "did_you_mean.h"
#include "settings/ascii_text.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

std::string WithoutExtension(std::string name) {
  const std::string extension = "." + std::string(kPresetExtension);
  if (name.size() > extension.size() &&
      EqualIgnoringCase(std::string_view(name).substr(name.size() - extension.size()), extension)) {
    name.resize(name.size() - extension.size());
  }
  return name;
}

std::string LeafOf(const std::string& name) {
  return name.substr(name.rfind('/') + 1);
}

// How well an entry fits a name: 0 is best, kNoFit not at all.
constexpr int kNoFit = 5;

int Fit(const PresetEntry& entry, const std::string& wanted) {
  const std::string leaf = LeafOf(entry.name);
  const std::string withFolder = std::string(PresetFolder(entry.kind)) + "/" + entry.name;
  if (entry.name == wanted || withFolder == wanted) return 0;
  if (leaf == wanted) return 1;
  if (EqualIgnoringCase(entry.name, wanted)) return 2;
  if (EqualIgnoringCase(withFolder, wanted)) return 3;
  return EqualIgnoringCase(leaf, wanted) ? 4 : kNoFit;
}

// The entries of `kind` with the best fit.
std::vector<const PresetEntry*> BestFits(const std::vector<PresetEntry>& entries, PresetKind kind,
                                         const std::string& wanted) {
  std::vector<const PresetEntry*> best;
  int bestFit = kNoFit;
  for (const PresetEntry& entry : entries) {
    if (entry.kind != kind) continue;
    const int fit = Fit(entry, wanted);
    if (fit < bestFit) best.clear();
    bestFit = std::min(bestFit, fit);
    if (fit == bestFit && fit != kNoFit) best.push_back(&entry);
  }
  return best;
}

bool LooksLikePath(const std::string& given) {
  return given.find('/') != std::string::npos ||
         EqualIgnoringCase(fs::path(given).extension().string(),
                           "." + std::string(kPresetExtension));
}

}  // namespace

std::vector<PresetEntry> ListPresets(const fs::path& root, std::span<const PresetKind> kinds) {
  std::vector<PresetEntry> entries;
  for (const PresetKind kind : kinds) {
    const fs::path folder = root / PresetFolder(kind);
    const auto first = static_cast<std::ptrdiff_t>(entries.size());
    std::error_code fault;
    using Walk = fs::recursive_directory_iterator;
    for (Walk entry(folder, fs::directory_options::skip_permission_denied, fault), end;
         !fault && entry != end; entry.increment(fault)) {
      std::error_code ignored;
      const std::string name = entry->path().lexically_relative(folder).generic_string();
      const std::string bare = WithoutExtension(name);
      if (bare == name || !entry->is_regular_file(ignored)) continue;
      entries.push_back({kind, bare, entry->path()});
    }
    std::sort(entries.begin() + first, entries.end(),
              [](const PresetEntry& a, const PresetEntry& b) { return a.name < b.name; });
  }
  return entries;
}

fs::path FindPreset(const std::string& given, const std::string& option, const DataFolders& folders,
                    std::span<const PresetKind> kinds) {
  std::error_code fault;
  if (LooksLikePath(given) && fs::is_regular_file(given, fault)) return given;
  if (LooksLikePath(given) && !folders.HasPresets()) {
    FailUse(option + " " + given, "no such file", "check the name");
  }

  const std::vector<PresetEntry> entries = ListPresets(folders.Presets(), kinds);
  const std::string wanted = WithoutExtension(given);
  for (const PresetKind kind : kinds) {
    const std::vector<const PresetEntry*> fits = BestFits(entries, kind, wanted);
    if (fits.size() == 1) return fits[0]->path;
    if (fits.size() < 2) continue;
    std::vector<std::string> names;
    for (const PresetEntry* entry : fits) names.push_back("\"" + entry->name + "\"");
    FailUse(option + " " + given, "fits more than one preset", "give " + EitherOf(names));
  }
  std::vector<std::string> names;
  for (const PresetEntry& entry : entries) {
    names.push_back(given.find('/') == std::string::npos ? LeafOf(entry.name) : entry.name);
  }
  FailUse(option + " " + given, "no such preset",
          DidYouMean(wanted, names, "see tarnwick presets list"));
}

}  // namespace tarnwick
