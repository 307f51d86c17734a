#pragma once
#include <string>

#include "textures/texture_catalogue.h"

namespace tarnwick {

// The pages of eight in which the full-size picker shows the catalogue's filtered list,
// and what is chosen in them. The choice stands in the catalogue: currentIndex is marked
// and selectedName is what came in, until Accept.
class PickerPages {
 public:
  // Owns neither; both outlive it.
  PickerPages(TextureCatalogue& catalogue, const TextureSetTable& sets)
      : catalogue_(catalogue), sets_(sets) {}

  // All textures, with this one selected and its page up. Null looks for none: what is
  // selected stays.
  void Open(const char* selectedName);

  [[nodiscard]] int PageCount() const;
  [[nodiscard]] int Page() const { return page_; }
  // True when that is another page; beyond the ends nothing happens.
  bool GoTo(int page);
  // The place in the filtered list that a cell shows, or -1.
  [[nodiscard]] int PlaceOfCell(int cell) const;

  // The first page of those that pass; the mark follows the name.
  void Filter(const TextureFilter& filter);

  void Choose(int place) { catalogue_.currentIndex = place; }
  // From the one that is marked, or onto the first of the page. True when another page
  // comes up with it.
  bool Move(int step);

  // A choice outside the list leaves the name as it is.
  void Accept();
  // What was marked as it came up is marked again.
  void Cancel() { catalogue_.currentIndex = savedIndex_; }

 private:
  [[nodiscard]] int Count() const { return static_cast<int>(catalogue_.filtered.size()); }
  bool TurnToCurrent();

  TextureCatalogue& catalogue_;
  const TextureSetTable& sets_;
  int savedIndex_ = -1;
  int page_ = 0;
};

}  // namespace tarnwick
