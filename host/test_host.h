#pragma once
#include <deque>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "host/color_model.h"
#include "host/descriptor.h"
#include "host/document.h"
#include "host/handle_store.h"
#include "host/host_log.h"
#include "host/host_options.h"
#include "host/module_entry.h"
#include "host/pixel_service.h"
#include "host_interface/filter_record.h"

namespace tarnwick::testhost {

// Of a user before the host's colour picker: red, green and blue, if it has no error.
struct PickerAnswer {
  host::OSErr error = host::userCanceledErr;
  Color color{};
};

// All that the host is and keeps. The interface's procedures carry no context, so
// there is one host at a time: TheHost().
struct TestHost {
  HostOptions options;
  HostFailures failures;
  HostLog log;
  HandleStore handles;
  Document document;
  PixelService pixels;
  std::deque<PickerAnswer> pickerAnswers;  // of the pickers that come, in their order
  std::unique_ptr<ModuleEntry> module;

  // What is kept for the module from run to run.
  host::Handle parameters = nullptr;
  std::intptr_t dataSlot = 0;
  std::map<std::string, Descriptor> registry;

  // Of the last run.
  Descriptor recorded;
  bool hasRecorded = false;
  std::int16_t recordInfo = -1;
  std::vector<host::OSType> expectedKeys;  // as the module asked for them
  std::vector<host::OSType> missingKeys;   // of those, what its descriptor had not

  // Everything that is lent has to come back.
  std::map<std::pair<std::string, int>, int> suitesHeld;
  int descriptorsHeld = 0;
  int referencesHeld = 0;
  int readersOpen = 0;
  int writersOpen = 0;

  // The record of the present run: longer than any module knows it, and zeroed.
  alignas(8) char recordBytes[1024] = {};
  host::PIDescriptorParameters descriptorParameters{};
  host::BigDocumentStruct bigDocument{};
  host::PlatformData platform{};
  host::Str255 errorText{};

  [[nodiscard]] host::FilterRecord& Record() {
    return *reinterpret_cast<host::FilterRecord*>(recordBytes);
  }
};

[[nodiscard]] TestHost& TheHost();
// Does not own it.
void SetTheHost(TestHost* host);

}  // namespace tarnwick::testhost
