#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

// Where a plain text file lies that tells of newer versions.
struct NewsAddress {
  std::string host;  // a name or a number; IPv6 without brackets
  std::uint16_t port = 80;
  std::string path;  // with the query, from its "/" on
  // As the request names the host: with brackets, and with a port that is not 80.
  std::string authority;
};

// "http://HOST[:PORT][/PATH][?QUERY][#...]" of at most 1024 characters; the part from
// "#" on is dropped. Nothing else is an address: no other scheme, no user's name, no
// blanks or control characters, no letters beyond ASCII.
[[nodiscard]] std::optional<NewsAddress> ParseNewsAddress(std::string_view text);

// The whole request. It tells the host's name and the path, and nothing of the user.
[[nodiscard]] std::string NewsRequest(const NewsAddress& address);

}  // namespace tarnwick
