#include "textures/texture_catalogue.h"

#include <algorithm>
#include <system_error>

#include "base/native_path.h"
#include "settings/ascii_text.h"
#include "settings/effect_settings.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr int kMaskBits = 32;

bool InSetOfRow(const TextureRecord& record, const TextureSetTable& sets, int row) {
  const auto index = static_cast<std::size_t>(row) - 1;
  return index < sets.size() && sets[index].id == record.setId;
}

bool HasEffect(const TextureRecord& record, int bit) {
  return bit >= 0 && bit < kMaskBits && (record.effectMask >> bit & 1U) != 0;
}

bool IsPlain(const TextureRecord& record) {
  return record.fileName == kNoTextureName || record.fileName == kSolidTextureName;
}

void PutNoTextureFirst(std::vector<TextureRecord>& records, FirstTexture first) {
  const int found = FindTextureByName(records, kNoTextureName);
  if (found <= 0) return;
  const auto special = records.begin() + found;
  if (first == FirstTexture::kSwap) {
    std::iter_swap(records.begin(), special);
  } else {
    std::rotate(records.begin(), special, special + 1);
  }
}

template <class Passes>
std::vector<TextureRecord> Filtered(std::span<const TextureRecord> records, Passes passes) {
  std::vector<TextureRecord> kept;
  for (std::size_t i = 0; i < records.size(); ++i) {
    if (!passes(i)) continue;
    kept.push_back(records[i]);
    kept.back().listIndex = static_cast<std::int32_t>(i);
  }
  return kept;
}

std::string WithoutSeparator(const std::string& folder) {
  const bool ends = folder.ends_with('/') || folder.ends_with('\\');
  return ends ? folder.substr(0, folder.size() - 1) : folder;
}

}  // namespace

std::vector<TextureRecord> ListTextures(const std::string& folder,
                                        std::span<const std::string> names, FirstTexture first) {
  const std::string bare = WithoutSeparator(folder);
  std::vector<TextureRecord> records;
  records.reserve(names.size());
  for (const std::string& name : names) {
    TextureRecord record;
    record.fileName = name.substr(0, kMaxListedName);
    ReadRecordHeader(bare, record);
    records.push_back(std::move(record));
  }
  PutNoTextureFirst(records, first);
  return records;
}

std::vector<std::string> ScanTextureNames(const fs::path& folder) {
  std::vector<std::string> names;
  std::error_code fault;
  for (fs::directory_iterator entry(folder, fault), end; !fault && entry != end;
       entry.increment(fault)) {
    const fs::path name = entry->path().filename();
    std::error_code ignored;
    if (EqualIgnoringCase(NameOfPath(name.extension()), ".twk") && !entry->is_directory(ignored)) {
      names.push_back(NameOfPath(name));
    }
  }
  return names;
}

bool PassesPickerFilter(const TextureRecord& record, const TextureFilter& filter,
                        const TextureSetTable& sets) {
  return (filter.setRow == 0 || InSetOfRow(record, sets, filter.setRow)) &&
         (filter.effectRow == 0 || HasEffect(record, filter.effectRow));
}

bool PassesDrawerFilter(const TextureRecord& record, const TextureFilter& filter,
                        const TextureSetTable& sets) {
  if (filter.setRow == 1 || filter.effectRow == 1) return IsPlain(record);
  return (filter.setRow == 0 || InSetOfRow(record, sets, filter.setRow - 1)) &&
         (filter.effectRow == 0 || HasEffect(record, filter.effectRow - 1));
}

std::vector<TextureRecord> FilterForPicker(std::span<const TextureRecord> records,
                                           const TextureFilter& filter,
                                           const TextureSetTable& sets) {
  return Filtered(records,
                  [&](std::size_t i) { return PassesPickerFilter(records[i], filter, sets); });
}

std::vector<TextureRecord> FilterForDrawer(std::span<const TextureRecord> records,
                                           const TextureFilter& filter,
                                           const TextureSetTable& sets) {
  return Filtered(records, [&](std::size_t i) {
    return i == 0 || PassesDrawerFilter(records[i], filter, sets);
  });
}

int FindTextureByName(std::span<const TextureRecord> records, std::string_view name) {
  const auto found = std::ranges::find_if(records, [&](const TextureRecord& record) {
    return EqualIgnoringCase(record.fileName, name);
  });
  return found == records.end() ? -1 : static_cast<int>(found - records.begin());
}

void TextureCatalogue::Build(const std::string& folderName, std::span<const std::string> names,
                             const TextureFilter& filter, const TextureSetTable& sets) {
  folder = WithoutSeparator(folderName);
  records = ListTextures(folder, names, FirstTexture::kSwap);
  ApplyFilters(filter, sets);
  currentIndex = 0;
}

void TextureCatalogue::ApplyFilters(const TextureFilter& filter, const TextureSetTable& sets) {
  filtered = FilterForPicker(records, filter, sets);
}

void TextureCatalogue::FindByName(const std::string& name) {
  selectedName = name;
  currentIndex = FindTextureByName(filtered, name);
}

}  // namespace tarnwick
