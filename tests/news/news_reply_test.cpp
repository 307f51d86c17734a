#include "news/news_reply.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace tarnwick {
namespace {

using State = NewsReply::State;

constexpr char kFailed[] = "failed";
constexpr char kWaits[] = "waits for more";

// The body, or how else it ended.
std::string Outcome(const std::string& bytes, std::size_t piece, bool closes) {
  NewsReply reply;
  State state = State::kMore;
  for (std::size_t at = 0; at < bytes.size() && state == State::kMore; at += piece) {
    state = reply.Take(std::string_view(bytes).substr(at, piece));
  }
  if (closes) state = reply.End();
  if (state == State::kFailed) return kFailed;
  return state == State::kMore ? kWaits : "[" + std::string(reply.Body()) + "]";
}

// Whether it comes byte by byte or at once.
void ExpectOutcome(const std::string& bytes, const std::string& wanted, bool closes) {
  for (const std::size_t piece : {std::size_t{1}, std::size_t{7}, bytes.size() + 1}) {
    EXPECT_EQ(Outcome(bytes, piece, closes), wanted)
        << bytes.substr(0, 200) << " in pieces of " << piece;
  }
}

TEST(NewsReply, IsReadHoweverItComes) {
  const struct {
    const char* bytes;
    const char* open;    // while the server may send more
    const char* closed;  // when it has gone
  } kReplies[] = {
      {"HTTP/1.0 200 OK\r\n\r\nbody\n", kWaits, "[body\n]"},
      {"HTTP/1.1 200\r\nServer: x\r\n\r\n", kWaits, "[]"},
      {"HTTP/1.1 200 OK\nServer: x\n\nbody", kWaits, "[body]"},
      {"HTTP/1.1 200 OK\r\ncontent-length:  4 \r\n\r\nbody and more", "[body]", "[body]"},
      {"HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n", "[]", "[]"},
      {"HTTP/1.1 200 OK\r\nContent-Length: 4\r\nContent-Length: 4\r\n\r\nbody", "[body]", "[body]"},
      {"HTTP/1.1 200 OK\r\nContent-Encoding: identity\r\nno colon\r\n\r\nbody", kWaits, "[body]"},
      // Cut short.
      {"", kWaits, kFailed},
      {"HTTP/1.1 200 OK\r\nServer: x\r\n", kWaits, kFailed},
      {"HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nbody", kWaits, kFailed},
      // Another answer than a file.
      {"HTTP/1.1 404 Not Found\r\n\r\n", kFailed, kFailed},
      {"HTTP/1.1 301 Moved\r\nLocation: http://host/\r\n\r\n", kFailed, kFailed},
      {"HTTP/1.1 2000 OK\r\n\r\n", kFailed, kFailed},
      {"HTTP/2 200 OK\r\n\r\n", kFailed, kFailed},
      {"\r\n\r\nHTTP/1.1 200 OK\r\n\r\n", kFailed, kFailed},
      {"SSH-2.0-server\r\n\r\n", kFailed, kFailed},
      // A body that is not plain, or of no length that there can be.
      {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n4\r\nbody\r\n0\r\n\r\n", kFailed,
       kFailed},
      {"HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\n\r\nbody", kFailed, kFailed},
      {"HTTP/1.1 200 OK\r\nContent-Length: 4\r\nContent-Length: 5\r\n\r\nbody", kFailed, kFailed},
      {"HTTP/1.1 200 OK\r\nContent-Length: -4\r\n\r\nbody", kFailed, kFailed},
      {"HTTP/1.1 200 OK\r\nContent-Length: 4x\r\n\r\nbody", kFailed, kFailed},
      {"HTTP/1.1 200 OK\r\nContent-Length:\r\n\r\nbody", kFailed, kFailed},
      {"HTTP/1.1 200 OK\r\nContent-Length: 99999999999999999999\r\n\r\n", kFailed, kFailed},
  };
  for (const auto& reply : kReplies) {
    ExpectOutcome(reply.bytes, reply.open, false);
    ExpectOutcome(reply.bytes, reply.closed, true);
  }
}

TEST(NewsReply, HasLimits) {
  const std::string head = "HTTP/1.1 200 OK\r\n\r\n";
  const std::string body(4096, 'b');
  ExpectOutcome(head + body, "[" + body + "]", true);
  ExpectOutcome(head + body + "b", kFailed, false);
  ExpectOutcome("HTTP/1.1 200 OK\r\nContent-Length: 4097\r\n\r\n", kFailed, false);
  ExpectOutcome("HTTP/1.1 200 OK\r\nContent-Length: 4096\r\n\r\n" + body, "[" + body + "]", false);
  // 17 + 8 + the padding + 4 bytes are a head of 8192.
  const std::string start = "HTTP/1.1 200 OK\r\nX-Long: ";
  ExpectOutcome(start + std::string(8192 - 25 - 4, 'x') + "\r\n\r\nbody", "[body]", true);
  ExpectOutcome(start + std::string(8192 - 25 - 3, 'x') + "\r\n\r\nbody", kFailed, true);
  ExpectOutcome(std::string(8192, 'x'), kWaits, false);
  ExpectOutcome(std::string(8193, 'x'), kFailed, false);
}

TEST(NewsReply, ASecondAnswerChangesNothing) {
  NewsReply reply;
  EXPECT_EQ(reply.Take("HTTP/1.1 200 OK\r\nContent-Length: 1\r\n\r\na"), State::kWhole);
  EXPECT_EQ(reply.Take("HTTP/1.1 404 Not Found\r\n\r\n"), State::kWhole);
  EXPECT_EQ(reply.End(), State::kWhole);
  EXPECT_EQ(reply.Body(), "a");
  NewsReply failed;
  EXPECT_EQ(failed.Take("HTTP/1.1 404 Not Found\r\n\r\n"), State::kFailed);
  EXPECT_EQ(failed.Take("HTTP/1.1 200 OK\r\nContent-Length: 1\r\n\r\na"), State::kFailed);
}

}  // namespace
}  // namespace tarnwick
