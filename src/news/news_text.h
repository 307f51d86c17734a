#pragma once
#include <string_view>

namespace tarnwick {

// Whether a news file tells of a version above `own`. Such a file is plain text: a first
// line that is "TarnwickStudio news", and below it somewhere a line
//
//     version 1.4.2
//
// Of several such lines the first counts. A version is one to four numbers with points
// between them, each below 65536; what is missing at its end is 0. Any other text, and
// an `own` that is no version, tells of nothing.
[[nodiscard]] bool TellsOfNewer(std::string_view text, std::string_view own);

}  // namespace tarnwick
