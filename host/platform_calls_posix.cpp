// The filter's platform calls as this host answers them: it notes what would be
// shown. Linked before the filter's own.
#include "environment/platform_calls.h"

#include "host/linked_module.h"

namespace tarnwick {

void ShowWarningBox(const std::string& text) {
  testhost::LinkedModuleLog().boxes.push_back(text);
}

void ShowAlertBox(const std::string& text, void*) {
  testhost::LinkedModuleLog().boxes.push_back(text);
}

std::string ModuleFileName() {
  return testhost::LinkedModuleFile();
}

void* OwnModuleHandle() {
  return &testhost::LinkedModuleFile();
}

void WriteComplaint(const std::string& text) {
  testhost::LinkedModuleLog().complaints.push_back(text);
}

}  // namespace tarnwick
