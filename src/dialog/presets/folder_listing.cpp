#include "dialog/presets/folder_listing.h"

#include <windows.h>

namespace tarnwick {
namespace {

class Search {
 public:
  Search(const std::string& pattern, WIN32_FIND_DATAA& found)
      : handle_(FindFirstFileA(pattern.c_str(), &found)) {}
  ~Search() {
    if (IsOpen()) FindClose(handle_);
  }
  Search(const Search&) = delete;
  Search& operator=(const Search&) = delete;

  [[nodiscard]] bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  [[nodiscard]] bool Next(WIN32_FIND_DATAA& found) { return FindNextFileA(handle_, &found) != 0; }

 private:
  HANDLE handle_;
};

}  // namespace

std::vector<FolderEntry> ListFolder(const std::string& folder) {
  std::vector<FolderEntry> entries;
  WIN32_FIND_DATAA found{};
  Search search(folder + "*", found);
  if (!search.IsOpen()) return entries;
  do {
    entries.push_back({found.cFileName, (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
                       (found.dwFileAttributes & FILE_ATTRIBUTE_ARCHIVE) != 0});
  } while (search.Next(found));
  return entries;
}

}  // namespace tarnwick
