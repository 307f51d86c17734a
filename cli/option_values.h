#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "option_parser.h"

namespace tarnwick {

// The option's value as a whole number of lowest..highest, `otherwise` if it was
// not given; wrong use for anything else.
[[nodiscard]] std::int64_t NumberOption(const ParsedArguments& arguments, std::string_view option,
                                        std::int64_t lowest, std::int64_t highest,
                                        std::int64_t otherwise);

// --quality: 1..100.
[[nodiscard]] int QualityOption(const ParsedArguments& arguments);

}  // namespace tarnwick
