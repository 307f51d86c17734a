#include "news/news_address.h"

#include <algorithm>
#include <charconv>

#include "settings/ascii_text.h"

namespace tarnwick {
namespace {

constexpr std::string_view kScheme = "http://";
constexpr std::size_t kLongestAddress = 1024;
constexpr std::size_t kLongestHost = 253;  // what a name may have
constexpr std::uint16_t kUsualPort = 80;

bool IsVisible(char c) {
  return c > ' ' && c < '\x7F';
}

bool IsAlphanumeric(char c) {
  const char lower = AsciiLower(c);
  return (lower >= 'a' && lower <= 'z') || (c >= '0' && c <= '9');
}

bool IsOfName(char c) {
  return IsAlphanumeric(c) || c == '-' || c == '.' || c == '_';
}

bool IsOfIpv6(char c) {
  const char lower = AsciiLower(c);
  return (lower >= 'a' && lower <= 'f') || (c >= '0' && c <= '9') || c == ':' || c == '.';
}

// Up to the first of `ends`, which stays.
std::string_view TakeUpTo(std::string_view& rest, std::string_view ends) {
  const std::string_view taken = rest.substr(0, rest.find_first_of(ends));
  rest.remove_prefix(taken.size());
  return taken;
}

// The port's digits behind a colon, or nothing at all.
bool ReadPort(std::string_view text, std::uint16_t& port) {
  if (text.empty()) return true;
  if (text[0] != ':') return false;
  text.remove_prefix(1);
  const char* const end = text.data() + text.size();
  const auto [last, error] = std::from_chars(text.data(), end, port);
  return error == std::errc() && last == end && port != 0;
}

bool ReadHost(std::string_view authority, NewsAddress& address) {
  const bool isBracketed = authority.starts_with('[');
  const std::size_t end = isBracketed ? authority.find(']') : authority.find(':');
  if (isBracketed && end == std::string_view::npos) return false;
  const std::string_view host =
      isBracketed ? authority.substr(1, end - 1) : authority.substr(0, end);
  authority.remove_prefix(std::min(authority.size(), isBracketed ? end + 1 : end));
  if (host.empty() || host.size() > kLongestHost) return false;
  if (!std::ranges::all_of(host, isBracketed ? IsOfIpv6 : IsOfName)) return false;
  if (!ReadPort(authority, address.port)) return false;
  address.host = host;
  address.authority = isBracketed ? "[" + address.host + "]" : address.host;
  if (address.port != kUsualPort) address.authority += ":" + std::to_string(address.port);
  return true;
}

}  // namespace

std::optional<NewsAddress> ParseNewsAddress(std::string_view text) {
  if (text.size() > kLongestAddress || !std::ranges::all_of(text, IsVisible)) return std::nullopt;
  if (!EqualIgnoringCase(text.substr(0, kScheme.size()), kScheme)) return std::nullopt;
  text.remove_prefix(kScheme.size());
  NewsAddress address;
  if (!ReadHost(TakeUpTo(text, "/?#"), address)) return std::nullopt;
  address.path = TakeUpTo(text, "#");
  if (!address.path.starts_with('/')) address.path.insert(0, "/");
  return address;
}

std::string NewsRequest(const NewsAddress& address) {
  // The older form, to which no server answers in pieces or compressed.
  return "GET " + address.path +
         " HTTP/1.0\r\n"
         "Host: " +
         address.authority +
         "\r\n"
         "User-Agent: TarnwickStudio\r\n"
         "Accept: text/plain\r\n"
         "Connection: close\r\n"
         "\r\n";
}

}  // namespace tarnwick
