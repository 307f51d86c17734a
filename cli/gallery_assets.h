#pragma once
#include <string_view>

namespace tarnwick {

// The files of cli/gallery, which the build puts into the program.
extern const std::string_view kGalleryPage;    // page.html, a template: see FillTemplate
extern const std::string_view kGalleryGroup;   // group.html, one heading with its cards
extern const std::string_view kGalleryCard;    // card.html
extern const std::string_view kGalleryStyle;   // page.css
extern const std::string_view kGalleryScript;  // page.js

}  // namespace tarnwick
