// tarnwick-content: makes the textures of the data folder from their recipes.
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "builder/contact_sheet.h"
#include "builder/texture_recipe.h"
#include "textures/texture_effects.h"
#include "textures/wash_file_writer.h"
#include "toolbox/busy_steps.h"

namespace tarnwick::content {
namespace {

constexpr int kDone = 0, kFailed = 1, kWrongUse = 2;

constexpr const char* kHelp =
    "Usage: tarnwick-content [OPTION]...\n"
    "Makes the texture library from its recipes.\n"
    "\n"
    "  -o, --output DIR       write the textures there\n"
    "      --only NAME        this texture and no other (repeatable)\n"
    "      --contact-sheet FILE.pgm\n"
    "                         all of them reduced, each with its chooser tile\n"
    "      --pgm DIR          the textures as PGM pictures, to look at\n"
    "      --threads N        0: one for each processor (default)\n"
    "      --list             what there is: name, size, set, effects\n"
    "      --help             this\n"
    "\n"
    "Example: tarnwick-content --only Rusted -o /tmp --contact-sheet /tmp/rusted.pgm\n";

struct Options {
  bool list = false;
  bool help = false;
  std::string output;
  std::string pgmFolder;
  std::string contactSheet;
  std::vector<std::string> only;
  int threads = 0;
};

int WrongUse(const std::string& what, const std::string& why) {
  std::fprintf(stderr, "tarnwick-content: %s: %s (see --help)\n", what.c_str(), why.c_str());
  return kWrongUse;
}

// kDone, or the code to leave with.
int ParseOptions(int argc, char** argv, Options& options) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view option = argv[i];
    if (option == "--list" || option == "--help") {
      (option == "--list" ? options.list : options.help) = true;
      continue;
    }
    const bool known = option == "-o" || option == "--output" || option == "--only" ||
                       option == "--contact-sheet" || option == "--pgm" || option == "--threads";
    if (!known) return WrongUse(argv[i], "unknown option");
    if (++i == argc) return WrongUse(argv[i - 1], "needs a value");
    const std::string value = argv[i];
    if (option == "--only") {
      options.only.push_back(value);
    } else if (option == "--contact-sheet") {
      options.contactSheet = value;
    } else if (option == "--pgm") {
      options.pgmFolder = value;
    } else if (option == "--threads") {
      const char* end = value.data() + value.size();
      const auto parsed = std::from_chars(value.data(), end, options.threads);
      if (parsed.ec != std::errc{} || parsed.ptr != end || options.threads < 0) {
        return WrongUse(value, "not a number of threads");
      }
    } else {
      options.output = value;
    }
  }
  return kDone;
}

void PrintList(const std::vector<TextureRecipe>& recipes) {
  for (const TextureRecipe& recipe : recipes) {
    std::string effects;
    for (std::string_view effect : recipe.effects) {
      if (!effects.empty()) effects += ", ";
      effects += effect;
    }
    std::printf("%-28s %5d x %-5d %-16s %s\n", TextureFileName(recipe).c_str(), recipe.width,
                recipe.height, std::string(TextureSetNameOf(recipe.set)).c_str(), effects.c_str());
  }
}

bool Fail(const std::string& what, const char* why) {
  std::fprintf(stderr, "tarnwick-content: %s: %s\n", what.c_str(), why);
  return false;
}

bool WriteTexture(const Options& options, const TextureRecipe& recipe, const GreyPicture& picture) {
  if (!options.output.empty()) {
    const std::string path =
        (std::filesystem::path(options.output) / TextureFileName(recipe)).string();
    const WashFileHeader header{
        picture.width,     picture.height, 1, static_cast<std::uint32_t>(recipe.set), 0,
        EffectMask(recipe)};
    if (WriteWashFile(path, header, picture.samples) != WashWriteOutcome::kDone) {
      return Fail(path, "cannot be written");
    }
  }
  if (!options.pgmFolder.empty()) {
    const std::string path =
        (std::filesystem::path(options.pgmFolder) / (std::string(recipe.name) + ".pgm")).string();
    if (!WritePgm(path, picture)) return Fail(path, "cannot be written");
  }
  return true;
}

int Build(const Options& options, const std::vector<TextureRecipe>& recipes) {
  for (const std::string& folder : {options.output, options.pgmFolder}) {
    std::error_code error;
    if (!folder.empty()) std::filesystem::create_directories(folder, error);
    if (error) return Fail(folder, "cannot be made"), kFailed;
  }
  constexpr int kCellWidth = 512, kCellHeight = 384, kTileWidth = 112, kTileHeight = 84;
  ThreadPool pool(options.threads);
  std::vector<GreyPicture> cells;
  for (const TextureRecipe& recipe : recipes) {
    const Field field = PaintTexture(recipe, recipe.width, recipe.height, &pool);
    const Sheet sheet{recipe.width, recipe.height, recipe.seed, &pool};
    GreyPicture picture{recipe.width, recipe.height, ToBytes(sheet, field)};
    // Half of the library's bytes are grain that packs badly.
    CoarsenBusySteps(picture.samples, recipe.width, &pool);
    if (!WriteTexture(options, recipe, picture)) return kFailed;
    if (options.contactSheet.empty()) continue;
    cells.push_back(Stacked(Reduced(picture, kCellWidth, kCellHeight),
                            ChooserTile(picture, kTileWidth, kTileHeight)));
  }
  if (!options.contactSheet.empty()) {
    int width = 1, height = 1;
    for (const GreyPicture& cell : cells) {
      width = std::max(width, cell.width);
      height = std::max(height, cell.height);
    }
    if (!WritePgm(options.contactSheet, ContactSheet(cells, 4, width, height))) {
      return Fail(options.contactSheet, "cannot be written"), kFailed;
    }
  }
  return kDone;
}

int Run(int argc, char** argv) {
  Options options;
  if (const int code = ParseOptions(argc, argv, options); code != kDone) return code;
  if (options.help) return std::fputs(kHelp, stdout), kDone;

  std::vector<TextureRecipe> recipes = AllTextures();
  if (!options.only.empty()) {
    std::vector<TextureRecipe> chosen;
    for (const std::string& name : options.only) {
      const auto found = std::find_if(recipes.begin(), recipes.end(),
                                      [&](const TextureRecipe& r) { return r.name == name; });
      if (found == recipes.end()) return WrongUse(name, "no such texture");
      chosen.push_back(*found);
    }
    recipes = chosen;
  }
  if (options.list) return PrintList(recipes), kDone;
  if (options.output.empty() && options.contactSheet.empty() && options.pgmFolder.empty()) {
    return WrongUse("nothing to do", "give -o, --pgm, --contact-sheet or --list");
  }
  return Build(options, recipes);
}

}  // namespace
}  // namespace tarnwick::content

int main(int argc, char** argv) {
  return tarnwick::content::Run(argc, argv);
}
