#pragma once
#include <string>

#include "host/host_log.h"

namespace tarnwick::testhost {

// Of the module that is linked into this program.
[[nodiscard]] HostLog& LinkedModuleLog();
// The file that it takes itself for.
[[nodiscard]] std::string& LinkedModuleFile();

}  // namespace tarnwick::testhost
