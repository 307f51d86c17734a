#pragma once
#include <functional>
#include <optional>

#include "host/test_host.h"

namespace tarnwick::testhost {

// One invocation of the filter, as the host does it.
struct RunRequest {
  bool asksParameters = false;  // the user has chosen it from the menu
  std::int16_t playInfo = host::plugInDialogDontDisplay;
  const Descriptor* step = nullptr;  // a recorded step to play
  // Called when the module's blocks are there and not locked.
  std::function<void(TestHost&)> afterParameters;
};

// The error of the selector that ended the run; 0 is none. What was recorded, and
// everything else that the run has left, is in the host.
std::int16_t RunFilter(TestHost& host, const RunRequest& request);

// One call of a selector with a record as it is before a start; for hosts that do
// not keep to the order.
std::int16_t CallSelector(TestHost& host, std::int16_t selector);

// About needs no document and has a record of its own.
std::int16_t CallAbout(TestHost& host);

}  // namespace tarnwick::testhost
