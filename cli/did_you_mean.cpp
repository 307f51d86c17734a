#include "did_you_mean.h"

#include <vector>

#include "settings/near_names.h"

namespace tarnwick {

std::string EitherOf(std::span<const std::string> names) {
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) text += i + 1 == names.size() ? " or " : ", ";
    text += names[i];
  }
  return text;
}

std::string DidYouMean(std::string_view wanted, std::span<const std::string> names,
                       const std::string& otherwise) {
  constexpr std::size_t kMostNames = 3;
  const std::vector<std::string> near = NearNames(wanted, names, kMostNames);
  return near.empty() ? otherwise : "did you mean " + EitherOf(near) + "?";
}

}  // namespace tarnwick
