#pragma once
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "textures/texture_record.h"
#include "textures/texture_set_table.h"

namespace tarnwick {

// The textures of a folder as pickers list, filter and find them. Nothing here
// decodes a picture: of each file the header alone is read.

// How "No_Texture.twk" comes to stand first.
enum class FirstTexture {
  kSwap,  // the full-size picker: it changes places with the first one
  kMove,  // the drawer: the others keep their order
};

// A record for each name, in the order given, but for the first one. Headers are
// read from `folder`, which may end in a separator.
[[nodiscard]] std::vector<TextureRecord> ListTextures(const std::string& folder,
                                                      std::span<const std::string> names,
                                                      FirstTexture first);

// The names of the folder's ".twk" files, in the order in which the platform
// gives them; empty if it cannot be read.
[[nodiscard]] std::vector<std::string> ScanTextureNames(const std::filesystem::path& folder);

// The selected rows of the two filter boxes, from 0. Row 0 lets everything pass.
struct TextureFilter {
  int setRow = 0;
  int effectRow = 0;
};

// The full-size picker's rows are the sets of the table and the effects.
[[nodiscard]] bool PassesPickerFilter(const TextureRecord& record, const TextureFilter& filter,
                                      const TextureSetTable& sets);

// The drawer's boxes have "No Texture/Solid" as row 1 of both, so what follows
// stands a row lower. Row 1 passes just "No_Texture.twk" and "Solid.twk", by
// case: in the set box whatever the effect box says, in the effect box whatever
// other set is chosen.
[[nodiscard]] bool PassesDrawerFilter(const TextureRecord& record, const TextureFilter& filter,
                                      const TextureSetTable& sets);

// Copies of the records that pass, in their order, with their places in the full
// list. The drawer's always begins with record 0.
[[nodiscard]] std::vector<TextureRecord> FilterForPicker(std::span<const TextureRecord> records,
                                                         const TextureFilter& filter,
                                                         const TextureSetTable& sets);
[[nodiscard]] std::vector<TextureRecord> FilterForDrawer(std::span<const TextureRecord> records,
                                                         const TextureFilter& filter,
                                                         const TextureSetTable& sets);

// The first record with this file name, in any case; -1 if there is none.
[[nodiscard]] int FindTextureByName(std::span<const TextureRecord> records, std::string_view name);

// The full-size picker's state, without its window.
struct TextureCatalogue {
  std::string folder;  // without a separator at its end
  std::vector<TextureRecord> records;
  std::vector<TextureRecord> filtered;
  std::string selectedName;
  std::int32_t currentIndex = -1;  // in `filtered`; -1 for none

  // Lists and filters. `sets` is used again by ApplyFilters.
  void Build(const std::string& folderName, std::span<const std::string> names,
             const TextureFilter& filter, const TextureSetTable& sets);
  void ApplyFilters(const TextureFilter& filter, const TextureSetTable& sets);
  // Selects the first filtered record of this name, or none.
  void FindByName(const std::string& name);
};

}  // namespace tarnwick
