#include "presets/color_categories.h"

#include <algorithm>

#include "settings/effect_settings.h"

namespace tarnwick {

std::vector<std::string> SplitCategories(std::string_view joined) {
  std::vector<std::string> categories;
  while (true) {
    const std::size_t bar = joined.find('|');
    if (bar != 0 && !joined.empty()) categories.emplace_back(joined.substr(0, bar));
    if (bar == joined.npos) return categories;
    joined.remove_prefix(bar + 1);
  }
}

bool PassesCategory(std::span<const std::string> categories, int row, std::string_view text) {
  if (row == 0 || text.empty() || text.size() > kMaxCategoryName) return true;
  return std::ranges::find(categories, text) != categories.end();
}

}  // namespace tarnwick
