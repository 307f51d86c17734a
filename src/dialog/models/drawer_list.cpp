#include "dialog/models/drawer_list.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "presets/color_categories.h"
#include "settings/ascii_text.h"

namespace tarnwick {

void DrawerList::SetTextures(std::vector<TextureRecord> records, TextureSetTable sets) {
  mode_ = DrawerMode::kTextures;
  textures_ = std::move(records);
  sets_ = std::move(sets);
  colors_.clear();
  ShowAll(textures_.size());
}

void DrawerList::SetColors(std::vector<ColorRecord> records) {
  mode_ = DrawerMode::kColors;
  colors_ = std::move(records);
  textures_.clear();
  ShowAll(colors_.size());
}

void DrawerList::ShowAll(std::size_t count) {
  shown_.resize(count);
  std::iota(shown_.begin(), shown_.end(), 0);
  page_ = 0;
  selected_ = -1;
  categoryRow_ = 0;
  selectedName_.clear();
}

int DrawerList::PageCount() const {
  const int cells = CellCount();
  return cells > 0 ? (ShownCount() + cells - 1) / cells : 0;
}

void DrawerList::SetRows(int rows) {
  rows_ = std::max(rows, 0);
  page_ = std::clamp(page_, 0, std::max(PageCount() - 1, 0));
}

int DrawerList::PlaceOfCell(int cell) const {
  const int place = page_ * CellCount() + cell;
  return cell >= 0 && cell < CellCount() && place < ShownCount() ? place : -1;
}

bool DrawerList::TurnPage(int step) {
  const int page = std::clamp(page_ + step, 0, std::max(PageCount() - 1, 0));
  return std::exchange(page_, page) != page;
}

void DrawerList::FilterTextures(const TextureFilter& filter) {
  if (mode_ != DrawerMode::kTextures) return;
  shown_.clear();
  for (const TextureRecord& record : FilterForDrawer(textures_, filter, sets_)) {
    shown_.push_back(record.listIndex);
  }
  Refiltered();
}

bool DrawerList::FilterCategory(int row) {
  if (mode_ != DrawerMode::kColors || row < 0 || row >= static_cast<int>(kColorCategories.size())) {
    return false;
  }
  const std::string_view text = kColorCategories[static_cast<std::size_t>(row)];
  if (text == kBlankCategory) return false;
  categoryRow_ = row;
  shown_ = FilterColors(colors_, row, text);
  Refiltered();
  return true;
}

void DrawerList::Refiltered() {
  page_ = 0;
  SelectByName(std::string(selectedName_));
  page_ = 0;
}

void DrawerList::SelectByName(std::string_view name) {
  selectedName_ = name;
  const auto found = std::find_if(shown_.begin(), shown_.end(), [&](int record) {
    const auto i = static_cast<std::size_t>(record);
    return EqualIgnoringCase(
        mode_ == DrawerMode::kTextures ? textures_[i].fileName : colors_[i].fileName, name);
  });
  selected_ = found != shown_.end() ? static_cast<int>(found - shown_.begin()) : -1;
  (void)TurnToSelected();
}

bool DrawerList::TurnToSelected() {
  const int cells = CellCount();
  const int page = cells > 0 ? std::clamp(selected_ / cells, 0, std::max(PageCount() - 1, 0)) : 0;
  return std::exchange(page_, page) != page;
}

void DrawerList::Select(int place) {
  if (place < 0 || place >= ShownCount()) return;
  selected_ = place;
  selectedName_ = FileName(place);
}

const std::string& DrawerList::FileName(int place) const {
  const auto i = static_cast<std::size_t>(shown_[static_cast<std::size_t>(place)]);
  return mode_ == DrawerMode::kTextures ? textures_[i].fileName : colors_[i].fileName;
}

std::string DrawerList::DisplayName(int place) const {
  return mode_ == DrawerMode::kTextures ? TextureDisplayName(FileName(place))
                                        : ColorDisplayName(FileName(place));
}

std::vector<std::string> DrawerList::ShownNames() const {
  std::vector<std::string> names;
  for (int place = 0; place < ShownCount(); ++place) names.push_back(FileName(place));
  return names;
}

}  // namespace tarnwick
