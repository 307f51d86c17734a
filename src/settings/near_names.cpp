#include "settings/near_names.h"

#include <algorithm>
#include <numeric>

#include "settings/ascii_text.h"

namespace tarnwick {
namespace {

// A shorter part of a name would be found in too many of them.
constexpr std::size_t kShortestPart = 3;

// From this length on a third slip is forgiven.
constexpr std::size_t kLongName = 10;

struct Candidate {
  std::size_t slips;
  const std::string* name;
};

}  // namespace

std::size_t EditDistance(std::string_view a, std::string_view b) {
  // One row of the usual table: slips[j] turns the letters of `a` so far into
  // the first j of `b`.
  std::vector<std::size_t> slips(b.size() + 1);
  std::iota(slips.begin(), slips.end(), std::size_t{0});
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = slips[0];
    slips[0] = i + 1;
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t replaced = diagonal + (AsciiLower(a[i]) == AsciiLower(b[j]) ? 0 : 1);
      diagonal = slips[j + 1];
      slips[j + 1] = std::min({replaced, diagonal + 1, slips[j] + 1});
    }
  }
  return slips.back();
}

std::vector<std::string> NearNames(std::string_view name, std::span<const std::string> candidates,
                                   std::size_t limit) {
  const std::size_t mostSlips = name.size() < kLongName ? 2 : 3;
  const std::string part = AsciiLowered(name);
  std::vector<Candidate> near;
  for (const std::string& candidate : candidates) {
    const std::size_t slips = EditDistance(name, candidate);
    // A name of three letters is two slips away from every other one.
    if (slips <= mostSlips && slips < std::max(name.size(), candidate.size())) {
      near.push_back({slips, &candidate});
    } else if (part.size() >= kShortestPart && AsciiLowered(candidate).find(part) != part.npos) {
      near.push_back({mostSlips + slips, &candidate});
    }
  }
  std::ranges::stable_sort(near, {}, &Candidate::slips);
  if (near.size() > limit) near.resize(limit);
  std::vector<std::string> names;
  for (const Candidate& candidate : near) names.push_back(*candidate.name);
  return names;
}

}  // namespace tarnwick
