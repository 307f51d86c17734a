#pragma once
#include <filesystem>
#include <string>

#include "resources/art_generator/picture.h"

namespace tarnwick {

// Where sources come from and where what is made of them goes.
struct ArtFolders {
  std::filesystem::path sources;  // src/resources/art
  std::filesystem::path fonts;    // the one folder that text may take its fonts from
  std::filesystem::path out;
};

// Makes the folder, puts the shared style sheet there, and pins the fonts: the user's
// own fonts and font settings must not change a pixel.
void PrepareDrawing(const ArtFolders& folders);

// The text of a source, with these classes in its root, and with what it includes: in
// place of <?include NAME?> comes what is inside the root of NAME.svg.
[[nodiscard]] std::string ArtSource(const ArtFolders& folders, const std::string& name,
                                    const std::string& classes);

// Draws SVG text and returns the PNG, which stays in the folder as NAME.png beside its
// source. `side` 0: in the size the source gives; otherwise a square of that side. An
// exception if it cannot be drawn.
[[nodiscard]] std::string DrawPng(const ArtFolders& folders, const std::string& name,
                                  const std::string& svg, int side = 0);

[[nodiscard]] std::string ReadWholeFile(const std::filesystem::path& path);
void WriteWholeFile(const std::filesystem::path& path, const std::string& bytes);

}  // namespace tarnwick
