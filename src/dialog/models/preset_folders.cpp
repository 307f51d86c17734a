#include "dialog/models/preset_folders.h"

#include "dialog/models/preset_lists.h"

namespace tarnwick {
namespace {

constexpr char kSeparator = '\\';
constexpr std::string_view kSeparators = "\\/";

void EndInSeparator(std::string& path) {
  if (path.empty() || kSeparators.find(path.back()) == kSeparators.npos) path += kSeparator;
}

void AppendFile(std::string& path, std::string_view name) {
  path += name;
  path += '.';
  path += kPresetExtension;
}

void CutLastComponent(std::string& path) {
  if (!path.empty() && kSeparators.find(path.back()) != kSeparators.npos) path.pop_back();
  const std::size_t separator = path.find_last_of(kSeparators);
  path.resize(separator == path.npos ? 0 : separator + 1);
}

}  // namespace

std::string* PresetFolders::Place(PresetKind kind) {
  const auto index = static_cast<std::size_t>(kind);
  return index < subFolders_.size() ? &subFolders_[index] : nullptr;
}

const std::string& PresetFolders::SubFolder(PresetKind kind) const {
  static const std::string none;
  const auto index = static_cast<std::size_t>(kind);
  return index < subFolders_.size() ? subFolders_[index] : none;
}

bool PresetFolders::Enter(PresetKind kind, std::string_view row) {
  std::string* const place = Place(kind);
  if (place == nullptr || !IsFolderRow(row)) return false;
  if (IsUpRow(row)) {
    CutLastComponent(*place);
    return true;
  }
  row.remove_prefix(1);
  if (place->size() + row.size() + 1 > kLongestSubFolder) return false;
  *place += row;
  *place += kSeparator;
  return true;
}

std::string PresetFolders::Folder(PresetKind kind) const {
  std::string path = root_;
  path += PresetFolder(kind);
  path += kSeparator;
  path += SubFolder(kind);
  EndInSeparator(path);
  return path;
}

std::string PresetFolders::File(PresetKind kind, std::string_view name) const {
  std::string path = Folder(kind);
  AppendFile(path, name);
  return path;
}

std::string PresetFolders::TopFile(PresetKind kind, std::string_view name) const {
  std::string path = root_;
  path += PresetFolder(kind);
  path += kSeparator;
  AppendFile(path, name);
  return path;
}

}  // namespace tarnwick
