#include "host/test_host.h"

namespace tarnwick::testhost {
namespace {

TestHost*& Current() {
  static TestHost* host = nullptr;
  return host;
}

}  // namespace

TestHost& TheHost() {
  return *Current();
}

void SetTheHost(TestHost* host) {
  Current() = host;
}

}  // namespace tarnwick::testhost
