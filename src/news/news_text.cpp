#include "news/news_text.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <optional>

namespace tarnwick {
namespace {

constexpr std::string_view kFirstLine = "TarnwickStudio news";
constexpr std::string_view kNewsVersionWord = "version ";

using Version = std::array<std::uint16_t, 4>;

std::optional<Version> ParseVersion(std::string_view text) {
  Version version{};
  for (std::uint16_t& part : version) {
    const char* const end = text.data() + text.size();
    const auto [last, error] = std::from_chars(text.data(), end, part);
    if (error != std::errc()) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(last - text.data()));
    if (text.empty()) return version;
    if (text[0] != '.') return std::nullopt;
    text.remove_prefix(1);
  }
  return std::nullopt;  // a fifth part
}

// Without its end and the blanks before that.
std::string_view TakeTrimmedLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  const std::size_t last = line.find_last_not_of(" \t\r");
  return line.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

}  // namespace

bool TellsOfNewer(std::string_view text, std::string_view own) {
  const std::optional<Version> known = ParseVersion(own);
  if (!known || TakeTrimmedLine(text) != kFirstLine) return false;
  while (!text.empty()) {
    const std::string_view line = TakeTrimmedLine(text);
    if (!line.starts_with(kNewsVersionWord)) continue;
    const std::optional<Version> told = ParseVersion(line.substr(kNewsVersionWord.size()));
    return told && *told > *known;
  }
  return false;
}

}  // namespace tarnwick
