#pragma once
#include <string>

namespace tarnwick {

// From now on SIGINT, SIGTERM and SIGHUP remove the unfinished file before they
// end the program, and a file that grows past the system's limit is a write
// error like any other.
void RemoveUnfinishedOnSignals();

// The one file being written at present, which a signal removes; the same name
// with ".part" added goes with it. An empty path: there is none.
// Not for several threads at once.
void SetUnfinishedFile(const std::string& path);

}  // namespace tarnwick
