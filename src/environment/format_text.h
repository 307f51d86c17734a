#pragma once
#include <string>

namespace tarnwick {

// A text by a format of printf, of any length.
#if defined(__MINGW32__)
[[nodiscard]] __attribute__((format(__MINGW_PRINTF_FORMAT, 1, 2)))
#else
[[nodiscard]] __attribute__((format(printf, 1, 2)))
#endif
std::string
FormatText(const char* format, ...);

}  // namespace tarnwick
