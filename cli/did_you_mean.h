#pragma once
#include <span>
#include <string>
#include <string_view>

namespace tarnwick {

// "A, B or C".
[[nodiscard]] std::string EitherOf(std::span<const std::string> names);

// Advice after a name that is none of `names`: "did you mean A or B?", or
// `otherwise` when nothing is near.
[[nodiscard]] std::string DidYouMean(std::string_view wanted, std::span<const std::string> names,
                                     const std::string& otherwise);

}  // namespace tarnwick
