#include <dlfcn.h>

#include <climits>
#include <cstdio>
#include <cstdlib>

#include "environment/platform_calls.h"

namespace tarnwick {

void ShowWarningBox(const std::string& text) {
  std::fprintf(stderr, "%s\n", text.c_str());
}

void ShowAlertBox(const std::string& text, void*) {
  std::fprintf(stderr, "Plugins Alert: %s\n", text.c_str());
}

std::string ModuleFileName() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<const void*>(&ShowWarningBox), &info) == 0) return {};
  char resolved[PATH_MAX];
  return realpath(info.dli_fname, resolved) != nullptr ? resolved : "";
}

void* OwnModuleHandle() {
  Dl_info info{};
  return dladdr(reinterpret_cast<const void*>(&ShowWarningBox), &info) == 0 ? nullptr
                                                                            : info.dli_fbase;
}

void WriteComplaint(const std::string& text) {
  std::fputs(text.c_str(), stderr);
}

}  // namespace tarnwick
