#pragma once
#include <string>
#include <vector>

namespace tarnwick {

// Rows of texts as lines with aligned columns, two blanks between them.
[[nodiscard]] std::string AlignColumns(const std::vector<std::vector<std::string>>& rows);

// "a, b, c".
[[nodiscard]] std::string JoinNames(const std::vector<std::string>& names);

}  // namespace tarnwick
