// Any bytes as a server's answer, in pieces of any length: what comes of them does not
// hang on the pieces, and stays within its limits. The same bytes as an address and as
// a news file.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "news/news_address.h"
#include "news/news_reply.h"
#include "news/news_text.h"

namespace {

using namespace tarnwick;

void Expect(bool holds) {
  if (!holds) std::abort();
}

NewsReply Read(std::string_view bytes, std::size_t piece) {
  NewsReply reply;
  while (!bytes.empty()) {
    const std::string_view part = bytes.substr(0, piece);
    bytes.remove_prefix(part.size());
    if (reply.Take(part) != NewsReply::State::kMore) return reply;
  }
  return reply;
}

void TryAddress(std::string_view text) {
  const auto address = ParseNewsAddress(text);
  if (!address) return;
  // It names itself: what was read is an address again, and the same one.
  const auto again = ParseNewsAddress("http://" + address->authority + address->path);
  Expect(again && again->host == address->host && again->port == address->port &&
         again->path == address->path);
  // The order, four lines and the empty one, whatever the address holds.
  std::size_t lines = 0;
  for (const char c : NewsRequest(*address)) lines += c == '\n' ? 1 : 0;
  Expect(lines == 6);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  NewsReply whole = Read(bytes, bytes.size() + 1);
  NewsReply pieces = Read(bytes, data[0] % 16U + 1);
  Expect(whole.End() == pieces.End());
  Expect(whole.Body() == pieces.Body());
  Expect(whole.Body().size() <= NewsReply::kLongestBody);
  TryAddress(bytes);
  static_cast<void>(TellsOfNewer(bytes, "1.2.3"));
  static_cast<void>(TellsOfNewer("TarnwickStudio news\nversion 2", bytes));
  return 0;
}
