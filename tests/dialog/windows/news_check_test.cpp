#include <winsock2.h>

#include "dialog/news_check.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnwick {
namespace {

using Answer = NewsCheck::Answer;

// Takes connections in, as the system does by itself, and never answers.
class SilentServer {
 public:
  SilentServer() {
    WSADATA data{};
    EXPECT_EQ(WSAStartup(MAKEWORD(2, 2), &data), 0);
    listener_ = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    EXPECT_EQ(bind(listener_, reinterpret_cast<sockaddr*>(&place), sizeof place), 0);
    EXPECT_EQ(listen(listener_, 5), 0);
    int size = sizeof place;
    EXPECT_EQ(getsockname(listener_, reinterpret_cast<sockaddr*>(&place), &size), 0);
    port_ = ntohs(place.sin_port);
  }
  ~SilentServer() {
    closesocket(listener_);
    WSACleanup();
  }
  SilentServer(const SilentServer&) = delete;
  SilentServer& operator=(const SilentServer&) = delete;

  [[nodiscard]] std::string Address() const {
    return "http://127.0.0.1:" + std::to_string(port_) + "/news.txt";
  }
  // Takes the next connection, sends it the text and closes it.
  void AnswerOne(const std::string& text) const {
    const SOCKET peer = accept(listener_, nullptr, nullptr);
    ASSERT_NE(peer, INVALID_SOCKET);
    char request[1024];
    EXPECT_GT(recv(peer, request, sizeof request, 0), 0);
    EXPECT_EQ(send(peer, text.data(), static_cast<int>(text.size()), 0),
              static_cast<int>(text.size()));
    shutdown(peer, SD_SEND);
    // Until the other side has read it all.
    while (recv(peer, request, sizeof request, 0) > 0) {
    }
    closesocket(peer);
  }

 private:
  SOCKET listener_ = INVALID_SOCKET;
  int port_ = 0;
};

Answer Final(const NewsCheck& check) {
  for (int i = 0; i < 3000 && check.Ask() == Answer::kPending; ++i) Sleep(10);
  return check.Ask();
}

constexpr DWORD kLong = 600000;

TEST(NewsCheck, TellsWhatTheServerTells) {
  const SilentServer server;
  const struct {
    const char* text;
    Answer wanted;
  } kAnswers[] = {
      {"HTTP/1.0 200 OK\r\n\r\nTarnwickStudio news\nversion 1.3\n", Answer::kNews},
      {"HTTP/1.0 200 OK\r\n\r\nTarnwickStudio news\nversion 1.2\n", Answer::kNothing},
      {"HTTP/1.0 302 Found\r\nLocation: /\r\n\r\n", Answer::kNothing},
      {"TarnwickStudio news\nversion 1.3\n", Answer::kNothing},
  };
  for (const auto& answer : kAnswers) {
    NewsCheck check(server.Address(), "1.2", kLong);
    server.AnswerOne(answer.text);
    EXPECT_EQ(Final(check), answer.wanted) << answer.text;
  }
}

TEST(NewsCheck, GivesUpByItself) {
  const SilentServer server;
  const DWORD start = GetTickCount();
  const NewsCheck check(server.Address(), "1.2", 300);
  EXPECT_EQ(Final(check), Answer::kNothing);
  EXPECT_GE(GetTickCount() - start, 250U);
}

// It would wait for ten minutes.
TEST(NewsCheck, IsStoppedAtOnce) {
  const SilentServer server;
  const DWORD start = GetTickCount();
  for (int i = 0; i < 5; ++i) {
    NewsCheck check(server.Address(), "1.2", kLong);
    if (i % 2 == 0) Sleep(100);
    EXPECT_EQ(check.Ask(), Answer::kPending);
    check.Stop();
    EXPECT_EQ(check.Ask(), Answer::kNothing);
    check.Stop();
  }
  EXPECT_LT(GetTickCount() - start, 60000U);
}

TEST(NewsCheck, AnAddressThatIsNoneBeginsNothing) {
  for (const char* address : {"", "https://127.0.0.1/", "127.0.0.1", "http://"}) {
    EXPECT_EQ(NewsCheck(address, "1.2").Ask(), Answer::kNothing) << address;
  }
}

TEST(NewsCheck, NobodyThere) {
  std::string dead;
  {
    const SilentServer gone;
    dead = gone.Address();
  }
  const NewsCheck check(dead, "1.2", kLong);
  EXPECT_EQ(Final(check), Answer::kNothing);
}

// Not even its threads are left.
TEST(NewsCheck, KeepsNoHandles) {
  const SilentServer server;
  const auto once = [&] { NewsCheck(server.Address(), "1.2", kLong).Stop(); };
  once();
  DWORD before = 0;
  DWORD after = 0;
  Sleep(500);
  GetProcessHandleCount(GetCurrentProcess(), &before);
  for (int i = 0; i < 20; ++i) once();
  Sleep(500);
  GetProcessHandleCount(GetCurrentProcess(), &after);
  EXPECT_LE(after, before + 5);
}

}  // namespace
}  // namespace tarnwick
