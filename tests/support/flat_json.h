#pragma once
#include <map>
#include <string>
#include <vector>

namespace tarnwick::testing {

// The members of a JSON object without nested objects. Strings lose their
// quotes; arrays stand as their items, numbers and words as their text.
std::map<std::string, std::vector<std::string>> ReadFlatJson(const std::string& path);

}  // namespace tarnwick::testing
