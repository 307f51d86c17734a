#pragma once
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// Insertions, deletions and replacements of one byte that turn `a` into `b`,
// whatever the case of ASCII letters.
[[nodiscard]] std::size_t EditDistance(std::string_view a, std::string_view b);

// The candidates that someone who wrote `name` may have meant, best first, at
// most `limit`: those a few slips away, then those that contain it.
[[nodiscard]] std::vector<std::string> NearNames(std::string_view name,
                                                 std::span<const std::string> candidates,
                                                 std::size_t limit);

}  // namespace tarnwick
