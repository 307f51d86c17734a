#pragma once
#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// The rows of the colour drawer's category box, in order. The first one lets all
// pass; the rows of blanks only part the groups and cannot be chosen.
inline constexpr std::string_view kBlankCategory = "            ";
inline constexpr std::array<std::string_view, 29> kColorCategories = {
    "All Categories",      "Red Tones",     "Orange Tones",
    "Yellow Tones",        "Green Tones",   "Blue Tones",
    "Pink Tones",          "Purple Tones",  "Black and White tones",
    "Brown Tones",         kBlankCategory,  "Cool Tones",
    "Dark Tones",          "Light Tones",   "Medium Tones",
    "Solid Tones",         "Pastel Tones",  "Vibrant Tones",
    "Warm Tones",          kBlankCategory,  "Atmospheric Tones",
    "Ephemeral Tones",     "Leather Tones", "Metal Tones",
    "Paper Tones",         "Rust Tones",    "Plant/Natural Tones",
    "Stone/Mineral Tones", "Wood Tones",
};

// The categories of a preset's one string, which parts them by "|".
[[nodiscard]] std::vector<std::string> SplitCategories(std::string_view joined);

// Whether a preset shows under row `row` of the box; `text` is that row's. Every
// preset does under row 0, under an empty text and one of 64 bytes or more; else
// one of its categories has to be the text to the letter.
[[nodiscard]] bool PassesCategory(std::span<const std::string> categories, int row,
                                  std::string_view text);

}  // namespace tarnwick
