#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick {

// A server's answer as its bytes come in, whatever they are. It never holds more than
// kLongestHead + kLongestBody bytes.
class NewsReply {
 public:
  enum class State : std::uint8_t { kMore, kWhole, kFailed };

  static constexpr std::size_t kLongestHead = 8192;
  static constexpr std::size_t kLongestBody = 4096;

  // The next bytes, of any number. Once it is whole or has failed nothing changes.
  //
  // It fails with anything but status 200, which redirections are, with a body sent in
  // pieces or compressed, and with what is longer than the limits or contradicts itself.
  State Take(std::string_view bytes);

  // The server has closed. That ends a body whose length was not told, and fails one
  // that is shorter than told.
  State End();

  // Empty until it is whole.
  [[nodiscard]] std::string_view Body() const;

 private:
  [[nodiscard]] State ReadHead();
  [[nodiscard]] State CheckBody();
  [[nodiscard]] bool ReadField(std::string_view line);

  std::string bytes_;       // the head, later the body
  bool hasHead_ = false;    // the head is read and gone
  bool hasLength_ = false;  // the body's length was told
  std::size_t length_ = 0;
  State state_ = State::kMore;
};

}  // namespace tarnwick
