#include "resources/art_generator/drawing.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tarnwick {
namespace {

std::string Quoted(const std::filesystem::path& path) {
  std::string quoted = "'";
  for (const char c : path.string()) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

// What lies inside the root element.
std::string Inside(const std::string& svg) {
  const std::size_t root = svg.find("<svg");
  const std::size_t begin = svg.find('>', root);
  const std::size_t end = svg.rfind("</svg>");
  if (root == std::string::npos || begin == std::string::npos || end == std::string::npos) {
    throw std::runtime_error("no SVG");
  }
  return svg.substr(begin + 1, end - begin - 1);
}

std::string WithIncludes(const ArtFolders& folders, std::string svg) {
  const std::string mark = "<?include ";
  for (std::size_t at = 0; (at = svg.find(mark, at)) != std::string::npos;) {
    const std::size_t end = svg.find("?>", at);
    if (end == std::string::npos) throw std::runtime_error("an include without an end");
    const std::string name = svg.substr(at + mark.size(), end - at - mark.size());
    const std::string text =
        WithIncludes(folders, Inside(ReadWholeFile(folders.sources / (name + ".svg"))));
    svg.replace(at, end + 2 - at, text);
    at += text.size();
  }
  return svg;
}

}  // namespace

std::string ReadWholeFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error(path.string() + ": cannot be read");
  return {std::istreambuf_iterator<char>(in), {}};
}

void WriteWholeFile(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary);
  out << bytes;
  out.close();
  if (!out) throw std::runtime_error(path.string() + ": cannot be written");
}

void PrepareDrawing(const ArtFolders& folders) {
  std::filesystem::create_directories(folders.out);
  // The drawing program looks for it beside the source.
  WriteWholeFile(folders.out / "palette.css", ReadWholeFile(folders.sources / "palette.css"));
  WriteWholeFile(folders.out / "fonts.conf",
                 "<?xml version=\"1.0\"?>\n<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">\n"
                 "<fontconfig><dir>" +
                     folders.fonts.string() + "</dir><cachedir>" +
                     (folders.out / "font-cache").string() +
                     "</cachedir>\n"
                     "<match target=\"font\">"
                     "<edit name=\"antialias\"><bool>true</bool></edit>"
                     "<edit name=\"hinting\"><bool>false</bool></edit>"
                     "<edit name=\"rgba\"><const>none</const></edit></match></fontconfig>\n");
}

std::string ArtSource(const ArtFolders& folders, const std::string& name,
                      const std::string& classes) {
  std::string svg = ReadWholeFile(folders.sources / (name + ".svg"));
  const std::string mark = "class=\"normal\"";
  const std::size_t at = svg.find(mark);
  if (at == std::string::npos || at > svg.find('>')) {
    throw std::runtime_error(name + ".svg: its root has not the class \"normal\"");
  }
  svg.replace(at, mark.size(), "class=\"" + classes + "\"");
  return WithIncludes(folders, svg);
}

std::string DrawPng(const ArtFolders& folders, const std::string& name, const std::string& svg,
                    int side) {
  const std::filesystem::path source = folders.out / (name + ".svg");
  const std::filesystem::path png = folders.out / (name + ".png");
  WriteWholeFile(source, svg);
  const std::string size =
      side == 0 ? "" : " -w " + std::to_string(side) + " -h " + std::to_string(side);
  const std::string command = "FONTCONFIG_FILE=" + Quoted(folders.out / "fonts.conf") +
                              " rsvg-convert" + size + " -o " + Quoted(png) + " " + Quoted(source);
  if (std::system(command.c_str()) != 0) throw std::runtime_error(name + ".svg: cannot be drawn");
  return ReadWholeFile(png);
}

}  // namespace tarnwick
