#pragma once
#include <cstdint>
#include <set>
#include <string>
#include <utility>

#include "host_interface/host_types.h"

namespace tarnwick::testhost {

// What this host offers. Hosts differ in all of it.
struct HostOptions {
  bool broker = true;  // sSPBasic
  std::set<std::pair<std::string, int>> refusedSuites;
  // Answered with a table of null procedures.
  std::set<std::pair<std::string, int>> emptySuites;
  bool emptyProcs = false;  // the same for the tables of descriptorParameters
  bool descriptors = true;  // descriptorParameters
  bool readProcs = true;
  bool writeProcs = true;
  bool bigDocument = true;
  bool colorServices = true;
  bool channelPorts = true;
  bool documentInfo = true;
  bool documentLayers = true;  // its version 2
  bool progress = true;
  bool abort = true;
  bool advance = true;
  bool handleProcs = true;
  bool pluginRef = true;
  bool mask = true;   // delivers the selection
  bool depth = true;  // tells it; old hosts say 0

  int resultAtEntry = 0;  // what the module finds in its result
  int rowPadding = 12;    // bytes after each row of a buffer
  int sampling = 2;       // samplingSupport
  int maxSpace = 100000000;
  bool autoMask = false;          // commits through the selection
  bool staleMask = false;         // maskData is not null before it is asked for
  bool onlyExpectedKeys = false;  // a read descriptor hands out no others
  bool registryError = false;     // asking for an entry that is not there is one
  bool coercions = true;          // numbers turn into each other when read
  bool keepsParameters = true;
  bool keepsData = true;
  bool finishAfterFailedStart = false;
};

// What is to go wrong, once.
struct HostFailures {
  host::OSErr advance = host::noErr;       // the next advanceState returns it
  int readKey = 0;                         // reading the value of this key, from 1 ...
  host::OSErr readKeyError = host::noErr;  // ... gives this error
  host::OSErr closeRead = host::noErr;
  bool openRead = false;
  bool openWrite = false;
  host::OSType putKey = 0;                // putting this key into an action descriptor ...
  host::OSErr putKeyError = host::noErr;  // ... gives this error
  bool makeReference = false;
  std::string unreadableLayer;  // none of its channels can be read
  bool makeDescriptor = false;
};

// A small paint program: none of the optional parts.
[[nodiscard]] HostOptions MinimalOptions();

// Sets an option by its name in scenarios. Throws std::runtime_error.
void SetOption(HostOptions& options, const std::string& name, const std::string& value);

}  // namespace tarnwick::testhost
