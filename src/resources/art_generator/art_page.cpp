#include "resources/art_generator/art_page.h"

#include <algorithm>
#include <stdexcept>

#include "resources/art_generator/art_table.h"
#include "resources/art_generator/sheet_drawing.h"
#include "resources/art_ids.h"

namespace tarnwick {
namespace {

constexpr int kMargin = 16;

struct Section {
  const char* title;
  const char* file;
  const char* ground;
  const char* ink;
  const char* note;
  std::vector<const char*> sources;
};

std::vector<Section> Sections() {
  return {
      {"Header buttons",
       "header-buttons",
       "#2a3239",
       "#c9d0d4",
       "Each holds the piece of the band that it lies on, so none has an outline of its own.",
       {"about", "auto", "manual", "presets"}},
      {"On the dialog's face",
       "face",
       "#f0f0f0",
       "#46525b",
       "Drawn on grey 240; on another face the dialog multiplies every sample by face / 240.",
       {"zoom_in", "zoom_out", "rotate_left", "rotate_right", "link", "film_back", "film_forward"}},
      {"In preset lists",
       "lists",
       "#ffffff",
       "#46525b",
       "On the white of a list, before the name of a folder and of the way up.",
       {"folder"}},
      {"On the pane's black and in the drawer",
       "drawer",
       "#000000",
       "#c9d0d4",
       "The crosses lie on the strip above the pane, the rest on the drawer's panel.",
       {"cross", "drawer_title", "drawer_select", "drawer_cancel", "drawer_live", "drawer_left",
        "drawer_right"}},
      {"Full-size picker",
       "picker",
       "#808080",
       "#ffffff",
       "The page arrows lie on black, the ends of the page strip and the close button on grey "
       "128; Select fills its window.",
       {"picker_select", "picker_left", "picker_right", "picker_first", "picker_last",
        "detail_close"}},
      {"Corner",
       "corner",
       "#808080",
       "#ffffff",
       "The lower left corner of the pane's frame, mirrored for the others: white is the "
       "dialog's face, black the frame.",
       {"corner_shade"}},
  };
}

std::vector<ArtBitmap> StatesOf(const std::string& source) {
  std::vector<ArtBitmap> states;
  std::ranges::copy_if(ArtBitmaps(), std::back_inserter(states),
                       [&](const ArtBitmap& art) { return source == art.source; });
  if (states.empty()) throw std::runtime_error("no picture comes from " + source);
  return states;
}

std::string PictureName(int id) {
  return "bitmap_" + std::to_string(id) + ".bmp";
}

// A row a control: at 1:1 with number and state below, then small ones at twice the size.
SheetDrawing DrawSection(const Section& section) {
  SheetDrawing sheet(section.ground, kMargin);
  int y = 16;
  for (const char* source : section.sources) {
    const std::vector<ArtBitmap> states = StatesOf(source);
    sheet.PutText(source, 16, y + 12, section.ink, 600);
    y += 22;
    const int height = states.front().height;
    const int times = states.front().width > 60 ? 1 : 2;
    // Large ones in two columns.
    const int inRow = states.front().width > 200 ? 2 : 6;
    int x = 16;
    int column = 0;
    for (const ArtBitmap& art : states) {
      if (column == inRow) {
        y += height * times + 34;
        x = 16;
        column = 0;
      }
      sheet.PutPicture(PictureName(art.id), x, y, art.width, art.height);
      int used = art.width;
      if (times == 2) {
        sheet.PutPicture(PictureName(art.id), x + used + 8, y, art.width, art.height, 2);
        used += 8 + 2 * art.width;
      }
      sheet.PutText(std::to_string(art.id) + " " + art.classes, x, y + height * times + 14,
                    section.ink);
      x += std::max(used, 112) + 20;
      ++column;
    }
    y += height * times + 34;
  }
  return sheet;
}

// The header as the dialog puts it together: at rest, then with the pointer everywhere.
void PutHeader(SheetDrawing& sheet, int top, int width, const std::vector<int>& buttons) {
  const int right = width - 334;
  sheet.PutPicture(PictureName(TARNWICK_ART_BAND_LEFT), 0, top, 453, 71);
  for (int x = 453; x < right; x += 4) {
    sheet.PutPicture(PictureName(TARNWICK_ART_BAND_TILE), x, top, 4, 71);
  }
  sheet.PutPicture(PictureName(TARNWICK_ART_BAND_RIGHT), right, top, 334, 71);
  sheet.PutPicture(PictureName(buttons[0]), 23, top + 18, 400, 35);
  sheet.PutPicture(PictureName(buttons[1]), 453, top + 9, 118, 50);
  sheet.PutPicture(PictureName(buttons[2]), width - 328, top + 19, 127, 40);
  sheet.PutPicture(PictureName(buttons[3]), width - 202, top + 19, 140, 40);
}

SheetDrawing DrawHeader(int width) {
  SheetDrawing sheet("#f0f0f0", 0);
  PutHeader(sheet, 0, width,
            {TARNWICK_ART_ABOUT, TARNWICK_ART_AUTO, TARNWICK_ART_MANUAL, TARNWICK_ART_PRESETS});
  PutHeader(sheet, 83, width,
            {TARNWICK_ART_ABOUT_HOVER, TARNWICK_ART_AUTO_HOVER, TARNWICK_ART_MANUAL_HOVER,
             TARNWICK_ART_PRESETS_HOVER});
  PutHeader(
      sheet, 166, width,
      {TARNWICK_ART_ABOUT_NEWS, TARNWICK_ART_AUTO, TARNWICK_ART_MANUAL, TARNWICK_ART_PRESETS_NEWS});
  return sheet;
}

SheetDrawing DrawIcons() {
  SheetDrawing sheet("#d8dcdf", kMargin);
  int y = 16;
  for (const ArtIcon& art : ArtIcons()) {
    const std::string name = (art.isCursor ? "cursor_" : "icon_") + std::to_string(art.id);
    sheet.PutText(std::string(art.source) + " " + std::to_string(art.id), 16, y + 12, "#46525b",
                  600);
    y += 22;
    int x = 16;
    int tallest = 0;
    for (const int side : art.isCursor ? CursorSides() : IconSides()) {
      sheet.PutPicture(name + "_" + std::to_string(side) + ".png", x, y, side, side);
      x += side + 16;
      tallest = side;
    }
    y += tallest + 20;
  }
  return sheet;
}

class PageWriter {
 public:
  PageWriter(const ArtFolders& folders, std::filesystem::path pictures)
      : folders_(folders), pictures_(std::move(pictures)) {
    std::filesystem::create_directories(pictures_);
  }

  void Heading(const std::string& title, const std::string& note) {
    text_ += "## " + title + "\n\n" + note + "\n\n";
  }
  void Show(const std::string& title, const std::string& file, const SheetDrawing& sheet) {
    WriteWholeFile(pictures_ / (file + ".png"), DrawPng(folders_, "sheet_" + file, sheet.Svg()));
    text_ += "![" + title + "](art/" + file + ".png)\n\n";
  }
  [[nodiscard]] std::string Text() const { return text_.substr(0, text_.size() - 1); }

 private:
  const ArtFolders& folders_;
  std::filesystem::path pictures_;
  std::string text_;
};

}  // namespace

std::string ArtPage(const ArtFolders& folders, const std::filesystem::path& pictures) {
  PageWriter page(folders, pictures);
  page.Heading("Header",
               "At rest, with the pointer on everything, and with news; 923 and 1600 "
               "pixels wide.");
  for (const int width : {923, 1600}) {
    const std::string name = "header-" + std::to_string(width);
    page.Show("The header, " + std::to_string(width) + " wide", name, DrawHeader(width));
  }
  for (const Section& section : Sections()) {
    page.Heading(section.title, section.note);
    page.Show(section.title, section.file, DrawSection(section));
  }
  page.Heading("Icons and cursors",
               "The module's icon has a drawing of its own for 16 and 20 "
               "pixels. Both hands point with their middle.");
  page.Show("Icons and cursors", "icons", DrawIcons());
  return page.Text();
}

}  // namespace tarnwick
