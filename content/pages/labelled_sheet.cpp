#include "pages/labelled_sheet.h"

#include <algorithm>
#include <vips/vips8>

namespace tarnwick::content {
namespace {

using vips::VImage;

constexpr int kGap = 14, kFootGap = 6, kFootWithoutTile = 22;
// Neither white nor black: both stand at the rims of many textures.
constexpr double kPaper = 72, kInk = 245;
// Lower, and fine grain turns into squares.
constexpr int kQuality = 84;

VImage ImageOf(const GreyPicture& picture) {
  return VImage::new_from_memory(const_cast<std::uint8_t*>(picture.samples.data()),
                                 picture.samples.size(), picture.width, picture.height, 1,
                                 VIPS_FORMAT_UCHAR);
}

VImage LabelOf(const LabelledPicture& cell, int width) {
  std::string words = "<b>" + cell.name + "</b>";
  if (!cell.note.empty()) words += "\n<small>" + cell.note + "</small>";
  const VImage ink = VImage::text(
      words.c_str(), VImage::option()->set("font", "sans 10")->set("dpi", 96)->set("width", width));
  return ink.linear((kInk - kPaper) / 255, kPaper).cast(VIPS_FORMAT_UCHAR);
}

}  // namespace

void WriteLabelledSheet(const std::string& path, const std::vector<LabelledPicture>& pictures,
                        int columns) {
  const bool tiled = std::any_of(pictures.begin(), pictures.end(),
                                 [](const LabelledPicture& cell) { return cell.tile.width > 0; });
  const int across = kCellWidth + kGap;
  const int down = kCellHeight + kFootGap + (tiled ? kTileHeight : kFootWithoutTile) + kGap;
  const int count = static_cast<int>(pictures.size());
  columns = std::clamp(columns, 1, std::max(count, 1));
  const int rows = (count + columns - 1) / columns;
  VImage sheet = VImage::black(columns * across + kGap, rows * down + kGap)
                     .linear(1, kPaper)
                     .cast(VIPS_FORMAT_UCHAR);
  for (int i = 0; i < count; ++i) {
    const LabelledPicture& cell = pictures[static_cast<std::size_t>(i)];
    const int left = kGap + i % columns * across;
    const int top = kGap + i / columns * down;
    const int foot = top + kCellHeight + kFootGap;
    sheet = sheet.insert(ImageOf(cell.picture), left + (kCellWidth - cell.picture.width) / 2,
                         top + (kCellHeight - cell.picture.height) / 2);
    int room = kCellWidth;
    if (cell.tile.width > 0) {
      room -= cell.tile.width + kGap;
      sheet = sheet.insert(ImageOf(cell.tile), left + kCellWidth - cell.tile.width, foot);
    }
    sheet = sheet.insert(LabelOf(cell, room), left, foot);
  }
  sheet.copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_B_W))
      .jpegsave(
          path.c_str(),
          VImage::option()->set("Q", kQuality)->set("optimize_coding", true)->set("strip", true));
}

}  // namespace tarnwick::content
