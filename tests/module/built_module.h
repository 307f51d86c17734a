#pragma once
#include "pe_file.h"

namespace tarnwick {

// The module under test, named by TARNWICK_MODULE, and the processor it is meant
// for, by TARNWICK_PROCESSOR.
[[nodiscard]] const PeFile& BuiltModule();
[[nodiscard]] bool MeantFor64Bits();

// The bytes of its one English resource of that type, number 16000; a failed
// check and nothing if there is no such one, or a second.
[[nodiscard]] std::string DescriptionBytes(const std::string& type);

}  // namespace tarnwick
