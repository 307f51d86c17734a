// tarnwick-art make SOURCES FONTS OUT: draws every bitmap, icon and cursor of the module
// into the folder OUT, with the resource script art.rc that names them.
// tarnwick-art page SOURCES FONTS OUT PICTURES: the same, then the sheets of docs/art.md
// into the folder PICTURES, and its text to the standard output.
// Runs on the machine that builds; rsvg-convert has to be there.
#include <cmath>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string_view>

#include "resources/art_generator/art_page.h"
#include "resources/art_generator/art_table.h"
#include "resources/art_generator/drawing.h"

namespace tarnwick {
namespace {

// A line of the script. Names without folders: the resource compiler gets the folder.
std::string ScriptLine(int id, const char* kind, const std::string& file) {
  return std::to_string(id) + " " + kind + " \"" + file + "\"\n";
}

std::string MakeBitmap(const ArtFolders& folders, const ArtBitmap& art) {
  const std::string name = "bitmap_" + std::to_string(art.id);
  const ArtPicture drawn =
      DecodePng(DrawPng(folders, name, ArtSource(folders, art.source, art.classes)));
  const bool isCut = art.cutLeft != 0 || art.cutTop != 0;
  if (!isCut && (drawn.width != art.width || drawn.height != art.height)) {
    throw std::runtime_error(std::string(art.source) + ".svg: is " + std::to_string(drawn.width) +
                             " x " + std::to_string(drawn.height));
  }
  const ArtPicture picture = CutOut(drawn, art.cutLeft, art.cutTop, art.width, art.height);
  WriteWholeFile(folders.out / (name + ".bmp"), EncodeBitmap(picture));
  return ScriptLine(art.id, "BITMAP", name + ".bmp");
}

std::string MakeIcon(const ArtFolders& folders, const ArtIcon& art) {
  const std::string name = (art.isCursor ? "cursor_" : "icon_") + std::to_string(art.id);
  std::vector<IconImage> images;
  for (const int side : art.isCursor ? CursorSides() : IconSides()) {
    const std::string source = std::string(art.source) + (side <= art.smallUpTo ? "_small" : "");
    IconImage image;
    image.png = DrawPng(folders, name + "_" + std::to_string(side),
                        ArtSource(folders, source, "normal"), side);
    image.picture = DecodePng(image.png);
    image.hotX = static_cast<int>(std::lround(art.hotX * side));
    image.hotY = static_cast<int>(std::lround(art.hotY * side));
    images.push_back(image);
  }
  const std::string file = name + (art.isCursor ? ".cur" : ".ico");
  WriteWholeFile(folders.out / file, EncodeIcon(images, art.isCursor));
  return ScriptLine(art.id, art.isCursor ? "CURSOR" : "ICON", file);
}

void Make(const ArtFolders& folders) {
  PrepareDrawing(folders);
  std::string script = "/* Made by tarnwick-art. */\nLANGUAGE 0x19, 0x1\n\n";
  for (const ArtBitmap& art : ArtBitmaps()) {
    try {
      script += MakeBitmap(folders, art);
    } catch (const std::exception& error) {
      throw std::runtime_error("bitmap " + std::to_string(art.id) + ": " + error.what());
    }
  }
  for (const ArtIcon& art : ArtIcons()) script += MakeIcon(folders, art);
  WriteWholeFile(folders.out / "art.rc", script);
}

}  // namespace
}  // namespace tarnwick

int main(int argc, char** argv) {
  const std::string_view job = argc > 1 ? argv[1] : "";
  if (!(job == "make" && argc == 5) && !(job == "page" && argc == 6)) {
    std::fputs(
        "usage: tarnwick-art make SOURCES FONTS OUT\n"
        "       tarnwick-art page SOURCES FONTS OUT PICTURES\n",
        stderr);
    return 2;
  }
  try {
    const tarnwick::ArtFolders folders{argv[2], argv[3], std::filesystem::absolute(argv[4])};
    tarnwick::Make(folders);
    if (job == "page") std::fputs(tarnwick::ArtPage(folders, argv[5]).c_str(), stdout);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "tarnwick-art: %s\n", error.what());
    return 1;
  }
}
