#pragma once
#include <span>
#include <string>
#include <string_view>

#include "gallery_looks.h"

namespace tarnwick {

// What the page says of the whole.
struct GalleryPage {
  std::string title;
  std::string photoName;  // without its folders
  int smallWidth = 0, smallHeight = 0;
  int largeWidth = 0, largeHeight = 0;
  // The words before a look's own on its command line, and those after them;
  // see LookCommand.
  std::vector<std::string> dataWords;
  std::string photo;  // as the user named it
};

// Where the pictures of an id lie, seen from the page.
[[nodiscard]] std::string SmallPicture(std::string_view id);
[[nodiscard]] std::string LargePicture(std::string_view id);

// The id of the untouched photograph's pictures; no look has it.
inline constexpr std::string_view kOriginalId = "original";

// What to type for this look at full size.
[[nodiscard]] std::string LookCommand(const GalleryPage& page, const GalleryLook& look);

// The page: one file that needs nothing but the pictures beside it.
[[nodiscard]] std::string GalleryPageText(const GalleryPage& page,
                                          std::span<const GalleryLook> looks);

// True for a page that GalleryPageText made, of this version or another one.
[[nodiscard]] bool IsGalleryPage(std::string_view html);

}  // namespace tarnwick
