#include "option_values.h"

#include "cli_error.h"
#include "number_text.h"
#include "picture_save.h"

namespace tarnwick {

std::int64_t NumberOption(const ParsedArguments& arguments, std::string_view option,
                          std::int64_t lowest, std::int64_t highest, std::int64_t otherwise) {
  const std::string* text = arguments.Value(option);
  if (text == nullptr) return otherwise;
  const auto number = ParseNumber<std::int64_t>(*text);
  if (number && *number >= lowest && *number <= highest) return *number;
  FailUse("--" + std::string(option), "\"" + *text + "\" is no whole number that it takes",
          "give " + std::to_string(lowest) + " to " + std::to_string(highest));
}

int QualityOption(const ParsedArguments& arguments) {
  return static_cast<int>(NumberOption(arguments, "quality", 1, 100, kDefaultQuality));
}

}  // namespace tarnwick
