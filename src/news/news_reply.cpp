#include "news/news_reply.h"

#include <charconv>

#include "settings/ascii_text.h"

namespace tarnwick {
namespace {

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// "HTTP/1.0 200 OK" or of version 1.1, with any reason or none.
bool IsSuccess(std::string_view line) {
  if (!line.starts_with("HTTP/1.0 200") && !line.starts_with("HTTP/1.1 200")) return false;
  constexpr std::size_t kCodeEnd = 12;
  return line.size() == kCodeEnd || line[kCodeEnd] == ' ';
}

// The next line without its end; a line may end in a line feed alone.
std::string_view TakeLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

// Where the body begins, behind an empty line; npos while that has not come.
std::size_t EndOfHead(std::string_view bytes) {
  for (std::size_t end = bytes.find('\n'); end != std::string_view::npos;
       end = bytes.find('\n', end + 1)) {
    std::string_view next = bytes.substr(end + 1);
    if (next.starts_with("\r\n")) return end + 3;
    if (next.starts_with('\n')) return end + 2;
  }
  return std::string_view::npos;
}

}  // namespace

NewsReply::State NewsReply::Take(std::string_view bytes) {
  if (state_ != State::kMore) return state_;
  // No more than can count: a large buffer is not copied whole.
  bytes_ += bytes.substr(0, kLongestHead + kLongestBody + 1 - bytes_.size());
  state_ = hasHead_ ? CheckBody() : ReadHead();
  return state_;
}

NewsReply::State NewsReply::End() {
  if (state_ != State::kMore) return state_;
  state_ = hasHead_ && !hasLength_ ? State::kWhole : State::kFailed;
  return state_;
}

std::string_view NewsReply::Body() const {
  return state_ == State::kWhole ? std::string_view(bytes_) : std::string_view();
}

NewsReply::State NewsReply::ReadHead() {
  const std::size_t end = EndOfHead(bytes_);
  if (end == std::string::npos) {
    return bytes_.size() > kLongestHead ? State::kFailed : State::kMore;
  }
  if (end > kLongestHead) return State::kFailed;
  std::string_view head = std::string_view(bytes_).substr(0, end);
  if (!IsSuccess(TakeLine(head))) return State::kFailed;
  while (!head.empty()) {
    if (!ReadField(TakeLine(head))) return State::kFailed;
  }
  hasHead_ = true;
  bytes_.erase(0, end);
  return CheckBody();
}

// False if it tells of a body that is not read.
bool NewsReply::ReadField(std::string_view line) {
  const std::size_t colon = line.find(':');
  if (colon == std::string_view::npos) return true;
  const std::string_view name = Trimmed(line.substr(0, colon));
  const std::string_view value = Trimmed(line.substr(colon + 1));
  if (EqualIgnoringCase(name, "Transfer-Encoding") || EqualIgnoringCase(name, "Content-Encoding")) {
    return EqualIgnoringCase(value, "identity");
  }
  if (!EqualIgnoringCase(name, "Content-Length")) return true;
  std::size_t length = 0;
  const char* const end = value.data() + value.size();
  const auto [last, error] = std::from_chars(value.data(), end, length);
  if (value.empty() || error != std::errc() || last != end || length > kLongestBody) return false;
  if (hasLength_ && length != length_) return false;
  hasLength_ = true;
  length_ = length;
  return true;
}

NewsReply::State NewsReply::CheckBody() {
  if (!hasLength_) return bytes_.size() > kLongestBody ? State::kFailed : State::kMore;
  if (bytes_.size() < length_) return State::kMore;
  bytes_.resize(length_);
  return State::kWhole;
}

}  // namespace tarnwick
