#pragma once
#include <cstdint>
#include <vector>

#include "host_interface/filter_record.h"

namespace tarnwick::testhost {

struct TestHost;

// Delivers pixels to the module and takes its output: what advanceState does.
//
// Rows have padding that nobody may write, and so has the input. An output that
// is still open is committed by the next request or by Close.
class PixelService {
 public:
  // Serves the record's request.
  host::OSErr Advance(TestHost& host);
  // The commit after the last Continue. Buffers are gone then.
  void Close(TestHost& host);
  // True while the record asks for anything.
  [[nodiscard]] static bool IsAsked(TestHost& host);

 private:
  struct Buffer {
    std::vector<std::uint8_t> bytes;
    std::vector<std::uint8_t> delivered;  // as they were
    host::VRect rect{};
    int low = 0, high = 0;
    std::int32_t rowBytes = 0;
    bool isOpen = false;
  };

  void Commit(TestHost& host);
  void CheckInput(TestHost& host) const;
  static host::OSErr Fill(TestHost& host, Buffer& buffer, const host::VRect& rect, int low,
                          int high, host::Fixed rate, int padding);
  host::OSErr FillMask(TestHost& host, const host::VRect& rect, host::Fixed rate, int padding);

  Buffer in_, out_, mask_;
};

}  // namespace tarnwick::testhost
