#include "vips_library.h"

#include <glib.h>
#include <vips/vips.h>

#include <new>
#include <string_view>

#include "cli_error.h"

namespace tarnwick {
namespace {

void Discard(const gchar*, GLogLevelFlags, const gchar*, gpointer) {}

// "jpegload_source: premature end" -> "premature end": the first word names an
// operation the user never asked for.
std::string_view WithoutOperation(std::string_view line) {
  const std::size_t colon = line.find(": ");
  if (colon == std::string_view::npos) return line;
  const bool oneWord = line.substr(0, colon).find(' ') == std::string_view::npos;
  return oneWord ? line.substr(colon + 2) : line;
}

}  // namespace

VipsLibrary::VipsLibrary(int threads) {
  for (const char* domain : {"VIPS", "GLib", "GLib-GObject"}) {
    g_log_set_handler(domain,
                      static_cast<GLogLevelFlags>(G_LOG_LEVEL_WARNING | G_LOG_LEVEL_INFO |
                                                  G_LOG_LEVEL_MESSAGE | G_LOG_LEVEL_DEBUG),
                      Discard, nullptr);
  }
  if (vips_init("tarnwick") != 0) {
    FailInput("picture library", VipsFault("does not start"), "reinstall libvips");
  }
  if (threads > 0) vips_concurrency_set(threads);
  // Every picture is read once; keeping results would only hold memory.
  vips_cache_set_max(0);
}

VipsLibrary::~VipsLibrary() {
  vips_shutdown();
}

std::string VipsFault(const std::string& otherwise) {
  const std::string_view buffer = vips_error_buffer();
  std::string text;
  std::size_t start = 0;
  while (start < buffer.size()) {
    const std::size_t end = std::min(buffer.find('\n', start), buffer.size());
    const std::string_view line = WithoutOperation(buffer.substr(start, end - start));
    // The library repeats itself when it unwinds.
    if (!line.empty() && text.find(line) == std::string::npos) {
      text += (text.empty() ? "" : "; ") + std::string(line);
    }
    start = end + 1;
  }
  vips_error_clear();
  return text.empty() ? otherwise : text;
}

bool IsMemoryFault(const std::string& fault) {
  // The second is the JPEG library's.
  return fault.find("out of memory") != std::string::npos ||
         fault.find("Insufficient memory") != std::string::npos;
}

}  // namespace tarnwick
