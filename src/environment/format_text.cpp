#include "environment/format_text.h"

#include <cstdarg>
#include <cstdio>

namespace tarnwick {

std::string FormatText(const char* format, ...) {
  std::va_list values;
  va_start(values, format);
  std::va_list again;
  va_copy(again, values);
  const int length = std::vsnprintf(nullptr, 0, format, values);
  va_end(values);
  std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
  if (!text.empty()) std::vsnprintf(text.data(), text.size() + 1, format, again);
  va_end(again);
  return text;
}

}  // namespace tarnwick
