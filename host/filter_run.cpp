#include "host/filter_run.h"

#include <algorithm>

#include "host/host_procs.h"
#include "host/record_setup.h"

namespace tarnwick::testhost {
namespace {

// A run that asks for pixels for ever is stopped.
constexpr int kMostContinues = 1000;

// What has to be true each time the module has returned.
void CheckAfterCall(TestHost& host) {
  const auto check = [&](bool isRight, const char* fault) {
    if (!isRight) host.log.faults.emplace_back(fault);
  };
  check(host.handles.Locked() == 0, "a block is still locked");
  const bool allReleased = std::all_of(host.suitesHeld.begin(), host.suitesHeld.end(),
                                       [](const auto& suite) { return suite.second <= 0; });
  check(allReleased, "a suite was not released");
  check(host.descriptorsHeld == 0, "a descriptor was not freed");
  check(host.referencesHeld == 0, "a reference was not freed");
  check(host.readersOpen == 0, "a read descriptor was not closed");
  check(host.writersOpen == 0, "a write descriptor was not closed");
  for (std::string& fault : host.handles.TakeFaults()) host.log.faults.push_back(std::move(fault));
}

std::int16_t Call(TestHost& host, std::int16_t selector) {
  host.log.selectors.push_back(selector);
  auto result = static_cast<std::int16_t>(host.options.resultAtEntry);
  host.module->Call(selector, host.recordBytes, &host.dataSlot, &result);
  host.parameters = host.Record().parameters;
  CheckAfterCall(host);
  return result;
}

void SetStep(TestHost& host, const RunRequest& request) {
  host.descriptorParameters.playInfo = request.playInfo;
  if (request.step == nullptr || !host.options.descriptors) return;
  const std::vector<char> bytes = BytesOf(*request.step);
  host.descriptorParameters.descriptor = host.handles.New(static_cast<std::int32_t>(bytes.size()));
  host.handles.Contents(host.descriptorParameters.descriptor) = bytes;
}

// The handle is the host's now, whether the module has replaced it or not.
void TakeRecorded(TestHost& host, bool hasFinished) {
  host.hasRecorded = false;
  host.recordInfo = host.descriptorParameters.recordInfo;
  const host::Handle handle = host.descriptorParameters.descriptor;
  if (handle == nullptr) return;
  if (!host.handles.Knows(handle)) {
    host.log.faults.emplace_back("the recorded descriptor does not exist");
    return;
  }
  if (hasFinished) {
    host.recorded = DescriptorFrom(host.handles.Contents(handle));
    host.hasRecorded = true;
  }
  host.handles.Dispose(handle);
  host.descriptorParameters.descriptor = nullptr;
}

void Forget(TestHost& host, host::Handle handle) {
  if (handle != nullptr && host.handles.Knows(handle)) host.handles.Dispose(handle);
}

void ForgetWhatIsNotKept(TestHost& host) {
  if (!host.options.keepsParameters) {
    Forget(host, host.parameters);
    host.parameters = nullptr;
  }
  if (!host.options.keepsData) {
    Forget(host, reinterpret_cast<host::Handle>(host.dataSlot));
    host.dataSlot = 0;
  }
}

std::int16_t ContinueWhileAsked(TestHost& host) {
  for (int i = 0; PixelService::IsAsked(host); ++i) {
    if (i == kMostContinues) {
      host.log.faults.emplace_back("the run does not end");
      break;
    }
    if (const std::int16_t error = host.pixels.Advance(host); error != 0) return error;
    if (const std::int16_t error = Call(host, host::filterSelectorContinue); error != 0) {
      return error;
    }
  }
  return 0;
}

std::int16_t RunSelectors(TestHost& host, const RunRequest& request, bool& hasFinished) {
  if (request.asksParameters) {
    if (const std::int16_t error = Call(host, host::filterSelectorParameters); error != 0) {
      return error;
    }
  }
  if (request.afterParameters) request.afterParameters(host);
  if (const std::int16_t error = Call(host, host::filterSelectorPrepare); error != 0) return error;
  std::int16_t error = Call(host, host::filterSelectorStart);
  const bool hasStarted = error == 0;
  if (hasStarted) error = ContinueWhileAsked(host);
  // Also after an error: what the module has done to an open output shows then.
  host.pixels.Close(host);
  if (hasStarted || host.options.finishAfterFailedStart) {
    hasFinished = true;
    const std::int16_t finish = Call(host, host::filterSelectorFinish);
    if (error == 0) error = finish;
  }
  return error;
}

}  // namespace

std::int16_t RunFilter(TestHost& host, const RunRequest& request) {
  host.log.selectors.clear();
  host.log.progress.clear();
  host.log.advances = 0;
  const auto description = SetUpRecord(host);
  SetStep(host, request);
  bool hasFinished = false;
  const std::int16_t error = RunSelectors(host, request, hasFinished);
  TakeRecorded(host, hasFinished);
  ForgetWhatIsNotKept(host);
  return error;
}

std::int16_t CallSelector(TestHost& host, std::int16_t selector) {
  const auto description = SetUpRecord(host);
  const std::int16_t error = Call(host, selector);
  host.pixels.Close(host);
  TakeRecorded(host, true);
  return error;
}

std::int16_t CallAbout(TestHost& host) {
  alignas(8) host::AboutRecord about{};
  about.platformData = &host.platform;
  about.sSPBasic = host.options.broker ? BrokerTable() : nullptr;
  std::int16_t result = 0;
  host.log.selectors.push_back(host::filterSelectorAbout);
  host.module->Call(host::filterSelectorAbout, &about, &host.dataSlot, &result);
  CheckAfterCall(host);
  return result;
}

}  // namespace tarnwick::testhost
