#include "dialog/news_socket.h"

#include <winsock2.h>
#include <ws2tcpip.h>

#include <array>
#include <memory>
#include <string_view>

#include "news/news_reply.h"

namespace tarnwick {
namespace {

class Library {
 public:
  Library() {
    WSADATA data{};
    isThere_ = WSAStartup(MAKEWORD(2, 2), &data) == 0;
  }
  ~Library() {
    if (isThere_) WSACleanup();
  }
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;

  [[nodiscard]] bool IsThere() const { return isThere_; }

 private:
  bool isThere_;
};

// A socket whose calls never wait, with the event that tells when to try again.
class Connection {
 public:
  explicit Connection(int family)
      : socket_(socket(family, SOCK_STREAM, IPPROTO_TCP)), event_(WSACreateEvent()) {
    constexpr long kAll = FD_CONNECT | FD_READ | FD_WRITE | FD_CLOSE;
    isReady_ = socket_ != INVALID_SOCKET && event_ != WSA_INVALID_EVENT &&
               WSAEventSelect(socket_, event_, kAll) == 0;
  }
  ~Connection() {
    // What has not been sent or read is of no use to anyone.
    const linger none = {1, 0};
    if (socket_ != INVALID_SOCKET) {
      setsockopt(socket_, SOL_SOCKET, SO_LINGER, reinterpret_cast<const char*>(&none), sizeof none);
      closesocket(socket_);
    }
    if (event_ != WSA_INVALID_EVENT) WSACloseEvent(event_);
  }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  [[nodiscard]] bool Connect(const addrinfo& place, const Deadline& deadline) {
    if (!isReady_) return false;
    if (connect(socket_, place.ai_addr, static_cast<int>(place.ai_addrlen)) == 0) return true;
    WSANETWORKEVENTS events{};
    do {
      if (WSAGetLastError() != WSAEWOULDBLOCK || !Wait(deadline, events)) return false;
      WSASetLastError(WSAEWOULDBLOCK);
    } while ((events.lNetworkEvents & FD_CONNECT) == 0);
    return events.iErrorCode[FD_CONNECT_BIT] == 0;
  }

  [[nodiscard]] bool Send(std::string_view bytes, const Deadline& deadline) {
    while (!bytes.empty()) {
      const int sent = send(socket_, bytes.data(), static_cast<int>(bytes.size()), 0);
      WSANETWORKEVENTS events{};
      if (sent > 0) {
        bytes.remove_prefix(static_cast<std::size_t>(sent));
      } else if (WSAGetLastError() != WSAEWOULDBLOCK || !Wait(deadline, events)) {
        return false;
      }
    }
    return true;
  }

  [[nodiscard]] NewsReply Receive(const Deadline& deadline) {
    NewsReply reply;
    std::array<char, 2048> part{};
    // Looked at each time: a server that never pauses would not let Wait do so.
    while (deadline.RestMs() > 0) {
      const int got = recv(socket_, part.data(), static_cast<int>(part.size()), 0);
      WSANETWORKEVENTS events{};
      if (got > 0) {
        const std::string_view bytes(part.data(), static_cast<std::size_t>(got));
        if (reply.Take(bytes) != NewsReply::State::kMore) break;
      } else if (got == 0) {
        reply.End();
        break;
      } else if (WSAGetLastError() != WSAEWOULDBLOCK || !Wait(deadline, events)) {
        break;
      }
    }
    return reply;
  }

 private:
  // Until the socket has something to tell; false if that did not come in time.
  [[nodiscard]] bool Wait(const Deadline& deadline, WSANETWORKEVENTS& events) {
    const std::array<HANDLE, 2> handles = {deadline.Stop(), event_};
    const DWORD rest = deadline.RestMs();
    if (rest == 0) return false;
    return WaitForMultipleObjects(2, handles.data(), FALSE, rest) == WAIT_OBJECT_0 + 1 &&
           WSAEnumNetworkEvents(socket_, event_, &events) == 0;
  }

  SOCKET socket_;
  WSAEVENT event_;
  bool isReady_ = false;
};

struct FreePlaces {
  void operator()(addrinfo* places) const { freeaddrinfo(places); }
};
using Places = std::unique_ptr<addrinfo, FreePlaces>;

Places PlacesOf(const NewsAddress& address) {
  addrinfo wanted{};
  wanted.ai_family = AF_UNSPEC;
  wanted.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  const std::string port = std::to_string(address.port);
  if (getaddrinfo(address.host.c_str(), port.c_str(), &wanted, &found) != 0) found = nullptr;
  return Places(found);
}

}  // namespace

Deadline::Deadline(void* stop, unsigned long patienceMs)
    : stop_(stop), start_(GetTickCount()), patienceMs_(patienceMs) {}

DWORD Deadline::RestMs() const {
  if (WaitForSingleObject(stop_, 0) == WAIT_OBJECT_0) return 0;
  const DWORD gone = GetTickCount() - start_;
  return gone < patienceMs_ ? patienceMs_ - gone : 0;
}

std::string FetchNews(const NewsAddress& address, const Deadline& deadline) {
  const Library library;
  if (!library.IsThere()) return {};
  const Places places = PlacesOf(address);
  for (const addrinfo* place = places.get(); place != nullptr && deadline.RestMs() > 0;
       place = place->ai_next) {
    Connection connection(place->ai_family);
    if (!connection.Connect(*place, deadline)) continue;
    // The first one that is there counts, whatever it answers.
    if (!connection.Send(NewsRequest(address), deadline)) return {};
    return std::string(connection.Receive(deadline).Body());
  }
  return {};
}

}  // namespace tarnwick
