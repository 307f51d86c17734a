// tarnwick-pages: the generated parts of docs/textures.md and docs/toolbox.md,
// and the sheets of pictures that they show.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>
#include <vector>
#include <vips/vips8>

#include "pages/labelled_sheet.h"
#include "pages/recipe_head.h"
#include "pages/texture_page.h"
#include "pages/toolbox_blocks.h"
#include "textures/wash_file.h"

namespace tarnwick::content {
namespace {

namespace fs = std::filesystem;

constexpr int kDone = 0, kFailed = 1, kWrongUse = 2;

// A last row of one picture would look forgotten.
int ColumnsFor(std::size_t count) {
  return count % 4 == 1 ? 3 : 4;
}

constexpr const char* kHelp =
    "Usage: tarnwick-pages textures RECIPES\n"
    "         prints the tables of textures; RECIPES is the folder of their sources\n"
    "       tarnwick-pages texture-sheets DATA DIR\n"
    "         writes the pictures of all textures of the folder DATA into DIR\n"
    "       tarnwick-pages toolbox\n"
    "         prints the tables of building blocks\n"
    "       tarnwick-pages toolbox-sheets DIR\n"
    "         writes their pictures into DIR\n";

int Fail(const std::string& what, const std::string& why) {
  std::fprintf(stderr, "tarnwick-pages: %s: %s\n", what.c_str(), why.c_str());
  return kFailed;
}

std::string InLowerCase(std::string_view name) {
  std::string lower;
  for (const char letter : name) {
    lower += letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
  }
  return lower;
}

int PrintTextures(const fs::path& folder) {
  std::vector<DescribedTexture> textures;
  for (const TextureRecipe& recipe : AllTextures()) {
    const fs::path path = folder / (InLowerCase(recipe.name) + ".cpp");
    std::ifstream source(path);
    const auto what = HeadSentence(source, recipe.name);
    if (!what) {
      return Fail(path.string(),
                  "does not begin with \"// " + std::string(recipe.name) + ": what it is.\"");
    }
    textures.push_back({recipe, *what});
  }
  std::fputs(TexturePage(textures).c_str(), stdout);
  return kDone;
}

bool ReadTexture(const fs::path& path, GreyPicture& picture) {
  AWashFile file;
  ImagePtr image;
  if (!file.Open(path.string()) || !file.ReadImage(image) || image->planeCount != 1) return false;
  const std::uint8_t* row = image->Interior();
  if (row == nullptr) return false;
  picture = {image->Width(), image->Height(), {}};
  for (int y = 0; y < picture.height; ++y, row += image->RowBytes()) {
    picture.samples.insert(picture.samples.end(), row, row + picture.width);
  }
  return true;
}

// As the sheet shows it: no "_", so that a long name can go on below.
std::string Spaced(std::string_view name) {
  std::string words(name);
  for (char& letter : words) letter = letter == '_' ? ' ' : letter;
  return words;
}

int MakeTextureSheets(const fs::path& data, const fs::path& folder) {
  for (const TextureSheet& sheet : SheetsOf(AllTextures())) {
    std::vector<LabelledPicture> cells;
    for (const TextureRecipe& recipe : sheet.recipes) {
      const fs::path path = data / TextureFileName(recipe);
      GreyPicture picture;
      if (!ReadTexture(path, picture)) return Fail(path.string(), "cannot be read");
      cells.push_back({Spaced(recipe.name), EffectNames(recipe),
                       Reduced(picture, kCellWidth, kCellHeight),
                       ChooserTile(picture, kTileWidth, kTileHeight)});
    }
    WriteLabelledSheet((folder / sheet.fileName).string(), cells, ColumnsFor(cells.size()));
  }
  return kDone;
}

int MakeToolboxSheets(const fs::path& folder) {
  ThreadPool pool(0);
  const Sheet sheet{kBlockWidth, kBlockHeight, 1887, &pool};
  for (const ToolboxChapter& chapter : ToolboxChapters()) {
    std::vector<LabelledPicture> cells;
    for (const ToolboxBlock& block : chapter.blocks) {
      const GreyPicture picture{kBlockWidth, kBlockHeight, ToBytes(sheet, block.paint(sheet))};
      cells.push_back(
          {std::string(block.name) + ".h", "", Reduced(picture, kCellWidth, kCellHeight), {}});
    }
    WriteLabelledSheet((folder / chapter.fileName).string(), cells, ColumnsFor(cells.size()));
  }
  return kDone;
}

int Run(int argc, char** argv) {
  const std::string command = argc > 1 ? argv[1] : "";
  if (command == "--help") return std::fputs(kHelp, stdout), kDone;
  if (command == "textures" && argc == 3) return PrintTextures(argv[2]);
  if (command == "toolbox" && argc == 2) return std::fputs(ToolboxPage().c_str(), stdout), kDone;
  const bool textures = command == "texture-sheets" && argc == 4;
  const bool toolbox = command == "toolbox-sheets" && argc == 3;
  if (!textures && !toolbox) return std::fputs(kHelp, stderr), kWrongUse;
  const std::string folder = argv[argc - 1];
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) return Fail(folder, "cannot be made");
  if (VIPS_INIT(argv[0]) != 0) return Fail("libvips", vips_error_buffer());
  try {
    return textures ? MakeTextureSheets(argv[2], folder) : MakeToolboxSheets(folder);
  } catch (const vips::VError& why) {
    return Fail(folder, why.what());
  }
}

}  // namespace
}  // namespace tarnwick::content

int main(int argc, char** argv) {
  return tarnwick::content::Run(argc, argv);
}
