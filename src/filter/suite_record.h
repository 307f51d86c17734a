#pragma once
#include <cstdint>
#include <exception>

#include "host_interface/suites.h"

namespace tarnwick {

// A suite that is held over several operations. What is needed for one only is
// better off with a HeldSuite.
struct SuiteRecord {
  const void* suite = nullptr;  // null until acquired
  std::int32_t version = 0;
  const char* name = nullptr;
  host::SPErr lastError = host::kSPNoError;
};

// The host lacks a service without which there is no going on. Caught where the
// host has called.
class HostServiceMissing : public std::exception {
 public:
  explicit HostServiceMissing(host::SPErr code) : code_(code) {}
  [[nodiscard]] host::SPErr Code() const { return code_; }
  [[nodiscard]] const char* what() const noexcept override {
    return "the host lacks a service that is needed";
  }

 private:
  host::SPErr code_;
};

// The suite of `record`, asked for at the first use; its error is kept in the
// record. Throws HostServiceMissing (kSPBadParameterError) without a broker, or
// when that has no such suite.
[[nodiscard]] const void* AcquireSuite(host::SPBasicSuite* broker, SuiteRecord& record);

// Gives it back, if it is held.
void ReleaseSuite(host::SPBasicSuite* broker, SuiteRecord& record);

}  // namespace tarnwick
