#include "gallery_looks.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <tuple>

#include "cli_error.h"
#include "engine/effect_layer.h"
#include "page_text.h"
#include "presets/color_categories.h"
#include "presets/color_list.h"
#include "texture_sets.h"
#include "texture_summary.h"
#include "textures/texture_record.h"

namespace tarnwick {
namespace {

using Kind = AgeStep::Kind;

// The shortest name by which the command line finds just this preset.
std::string NameFor(const PresetEntry& entry, const std::string& leaf, const DataFolders& folders,
                    std::span<const PresetKind> kinds) {
  const std::string whole = std::string(PresetFolder(entry.kind)) + "/" + entry.name;
  for (const std::string& name : {leaf, whole}) {
    try {
      if (FindPreset(name, "gallery", folders, kinds) == entry.path) return name;
    } catch (const CliError&) {
      // It fits several: the longer one tells them apart.
    }
  }
  return entry.path.string();
}

// Whether a preset of this kind chooses the texture. What it is only shown with
// would make every wash pass for the background's metal.
bool Chooses(PresetKind kind, LayerKind layer) {
  switch (kind) {
    case PresetKind::kWash:
      return layer == LayerKind::kWash;
    case PresetKind::kSurface:
    case PresetKind::kSurfaceColor:
    case PresetKind::kBackgroundColor:
      return layer == LayerKind::kSurface;
    case PresetKind::kBackground:
    case PresetKind::kBackPalette:
      return layer == LayerKind::kBackground;
    case PresetKind::kBasic:
    case PresetKind::kUser:
      break;
  }
  return true;
}

// The textures that make the look, by role; a linked second effect has the first
// one's.
std::vector<std::pair<std::string, std::string>> TexturesByRole(PresetKind kind,
                                                                const ComposedSettings& look) {
  const EffectSettings& s = look.settings;
  const bool secondWash = s.SecondWashExists != 0 && look.session.WashLinked == 0;
  const bool secondSurface = s.SecondSurfaceExists != 0 && look.session.SurfaceLinked == 0;
  std::vector<std::pair<std::string, std::string>> found;
  for (const auto& [layer, role, name, isOn] :
       {std::tuple(LayerKind::kWash, "Wash", s.WashFileName1, true),
        std::tuple(LayerKind::kWash, "Second wash", s.WashFileName2, secondWash),
        std::tuple(LayerKind::kSurface, "Surface", s.SurfaceFileName1, true),
        std::tuple(LayerKind::kSurface, "Second surface", s.SurfaceFileName2, secondSurface),
        std::tuple(LayerKind::kBackground, "Background", s.BackgroundFileName, true)}) {
    const std::string text(name, strnlen(name, kTextureNameSize));
    if (isOn && Chooses(kind, layer) && text != kNoTextureName) found.emplace_back(role, text);
  }
  return found;
}

void AddTextures(GalleryLook& look, const DataFolders& folders, const TextureSetTable& sets) {
  std::uint32_t effects = 0;
  for (const auto& [role, name] : TexturesByRole(look.kind, look.composed)) {
    LookTexture texture{role, TextureDisplayName(name), {}};
    if (const auto summary = ReadTextureSummary(folders.Textures() / name)) {
      texture.set = FindSetName(sets, summary->setId);
      effects |= summary->effectMask;
    }
    look.textures.push_back(std::move(texture));
  }
  look.effects = EffectNames(effects);
}

GalleryLook MakeLook(const PresetEntry& entry, const std::string& id, const DataFolders& folders,
                     const TextureSetTable& sets) {
  GalleryLook look;
  look.kind = entry.kind;
  const std::size_t leaf = entry.name.rfind('/') + 1;
  look.name = entry.name.substr(leaf);
  look.folder = leaf == 0 ? "" : entry.name.substr(0, leaf - 1);
  look.id = id;
  look.steps = ShownBy(entry.kind);
  if (IsColorKind(entry.kind)) {
    look.steps.push_back({Kind::kSurfaceColors, NameFor(entry, look.name, folders, kColorKinds)});
    std::string joined;
    (void)ReadColorCategoryOf(entry.path, joined);
    look.categories = SplitCategories(joined);
  } else {
    look.steps.push_back({Kind::kPreset, NameFor(entry, look.name, folders, kSettingsKinds)});
  }
  look.composed = ComposeSettings(look.steps, folders);
  if (!TexturesInUse(look.composed.settings).empty()) {
    SpellTexturesAsIn(folders.Textures(), look.composed.settings);
    AddTextures(look, folders, sets);
  }
  return look;
}

}  // namespace

std::vector<AgeStep> ShownBy(PresetKind kind) {
  const AgeStep noWash{Kind::kSet, "WashUse=0"};
  const AgeStep noSurface{Kind::kSet, "SurfaceUse=0"};
  const AgeStep noBackground{Kind::kSet, "BackgroundUse=0"};
  switch (kind) {
    case PresetKind::kBasic:
    case PresetKind::kUser:
      return {};
    case PresetKind::kWash:
      // The background stays: a wash that eats the picture away has to show
      // something there.
      return {noSurface};
    case PresetKind::kSurface:
      return {noWash, noBackground};
    case PresetKind::kSurfaceColor:
    case PresetKind::kBackgroundColor:
      // At full strength: under the default tint most colours look alike.
      return {noWash,
              noBackground,
              {Kind::kSet, "SurfaceType1=Colorize"},
              {Kind::kSet, "SurfaceMidtone=100"}};
    case PresetKind::kBackground:
    case PresetKind::kBackPalette:
      return {noSurface, {Kind::kSet, "WashFileName1=General_Store"}};
  }
  return {};
}

std::string KindTitle(PresetKind kind) {
  switch (kind) {
    case PresetKind::kBasic:
      return "Basic";
    case PresetKind::kUser:
      return "Your own";
    case PresetKind::kWash:
      return "Washes";
    case PresetKind::kSurface:
      return "Surfaces";
    case PresetKind::kBackground:
      return "Backgrounds";
    case PresetKind::kBackPalette:
      return "Back palettes";
    case PresetKind::kSurfaceColor:
    case PresetKind::kBackgroundColor:
      break;
  }
  return "Colours";
}

std::vector<std::string> LookIds(std::span<const PresetEntry> entries) {
  std::vector<std::string> ids;
  std::set<std::string> taken;
  for (const PresetEntry& entry : entries) {
    const std::string slug = SlugOf(entry.name);
    const std::string base =
        std::string(PresetKindWord(entry.kind)) + (slug.empty() ? "" : "-" + slug);
    std::string id = base;
    for (int n = 2; !taken.insert(id).second; ++n) id = base + "-" + std::to_string(n);
    ids.push_back(id);
  }
  return ids;
}

std::vector<GalleryLook> ListLooks(const DataFolders& folders, std::span<const PresetKind> kinds,
                                   Console& console, bool& failed) {
  std::vector<PresetEntry> entries = ListPresets(folders.Presets(), kinds);
  // The filmstrip's empty cell is no look.
  std::erase_if(entries, [](const PresetEntry& entry) {
    return entry.kind == PresetKind::kBackPalette && entry.name == kNoPaletteName;
  });
  const std::vector<std::string> ids = LookIds(entries);
  const TextureSetTable sets =
      folders.HasTextures() ? LoadSetsOf(folders.Textures(), console) : TextureSetTable{};
  std::vector<GalleryLook> looks;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    try {
      looks.push_back(MakeLook(entries[i], ids[i], folders, sets));
    } catch (const CliError& error) {
      // A folder of textures that is not there spoils them all.
      if (error.Code() == ExitCode::kWrongUse && !folders.HasTextures()) throw;
      console.Error(error.what());
      failed = true;
      continue;
    }
    for (const std::string& warning : looks.back().composed.warnings) console.Warning(warning);
  }
  return looks;
}

}  // namespace tarnwick
