#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "presets/color_list.h"
#include "textures/texture_catalogue.h"
#include "textures/texture_record.h"
#include "textures/texture_set_table.h"

namespace tarnwick {

// What a drawer lists, by the numbers it goes by.
enum class DrawerMode : std::uint8_t { kTextures = 0, kColors = 3 };

// Cells stand three in a row.
inline constexpr int kDrawerColumns = 3;

// What a drawer shows, without its windows: all records, those that pass the filter
// boxes, the page of them and the one that is selected. Its first record passes every
// filter. Places count from 0, and are those in the filtered list.
class DrawerList {
 public:
  // Each begins anew: no filter, nothing selected, the first page.
  void SetTextures(std::vector<TextureRecord> records, TextureSetTable sets);
  void SetColors(std::vector<ColorRecord> records);

  // Rows of cells that the drawer has room for; 0 shows nothing. The page stays, if
  // there is one of that number.
  void SetRows(int rows);
  [[nodiscard]] int CellCount() const { return rows_ * kDrawerColumns; }

  [[nodiscard]] DrawerMode Mode() const { return mode_; }
  [[nodiscard]] int ShownCount() const { return static_cast<int>(shown_.size()); }
  [[nodiscard]] int PageCount() const;
  [[nodiscard]] int Page() const { return page_; }
  // The record in a cell of the page, or -1.
  [[nodiscard]] int PlaceOfCell(int cell) const;
  [[nodiscard]] bool HasPageBefore() const { return page_ > 0; }
  [[nodiscard]] bool HasPageAfter() const { return page_ + 1 < PageCount(); }
  // One page on (1) or back (-1); false at the end.
  bool TurnPage(int step);

  // Rows of the boxes; see FilterForDrawer. Shows the first page, and keeps the name
  // that is selected, if it is there still.
  void FilterTextures(const TextureFilter& filter);
  // A row of kColorCategories. False for one of blanks, which changes nothing.
  bool FilterCategory(int row);
  [[nodiscard]] int CategoryRow() const { return categoryRow_; }

  // Selects the first record of this file name, in any case, or none, and turns to it.
  void SelectByName(std::string_view name);
  // The name alone, as chance has drawn it: what is marked stays.
  void NameSelected(std::string_view name) { selectedName_ = name; }
  // A click on a record; the page stays.
  void Select(int place);
  // To the page of the selected one; false if it is shown already.
  bool TurnToSelected();
  [[nodiscard]] int SelectedPlace() const { return selected_; }
  // Stays while a filter hides it. A texture's file name; that of a colour preset, or
  // kResetColorsName.
  [[nodiscard]] const std::string& SelectedName() const { return selectedName_; }

  [[nodiscard]] const std::string& FileName(int place) const;
  // Without the extension.
  [[nodiscard]] std::string DisplayName(int place) const;
  // Of textures only. The first one has no picture.
  [[nodiscard]] TextureRecord& Texture(int place) {
    return textures_[static_cast<std::size_t>(shown_[static_cast<std::size_t>(place)])];
  }

  // The file names of what is shown, in order: what chance draws from.
  [[nodiscard]] std::vector<std::string> ShownNames() const;

 private:
  void ShowAll(std::size_t count);
  void Refiltered();

  DrawerMode mode_ = DrawerMode::kTextures;
  TextureSetTable sets_;
  std::vector<TextureRecord> textures_;
  std::vector<ColorRecord> colors_;
  std::vector<int> shown_;  // places in the full list
  int rows_ = 0;
  int page_ = 0;
  int selected_ = -1;
  int categoryRow_ = 0;
  std::string selectedName_;
};

}  // namespace tarnwick
