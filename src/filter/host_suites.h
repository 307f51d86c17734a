#pragma once
#include <cstdint>

#include "filter/suite_parts.h"

namespace tarnwick {

// A suite that is held for one operation and given back at its end. Null when
// the host has no broker or refuses, or the suite lacks what is called: the
// service is then absent.
template <typename Suite>
class HeldSuite {
 public:
  HeldSuite(host::SPBasicSuite* broker, const char* name, std::int32_t version)
      : broker_(broker), name_(name), version_(version) {
    if (broker_ == nullptr || !HasParts(*broker_)) {
      error_ = host::kSPBadParameterError;
      return;
    }
    const void* found = nullptr;
    error_ = broker_->AcquireSuite(name_, version_, &found);
    if (error_ != host::kSPNoError) return;
    isHeld_ = true;
    const auto* const suite = static_cast<const Suite*>(found);
    if (suite != nullptr && HasParts(*suite)) {
      suite_ = suite;
    } else {
      error_ = host::kSPSuiteNotFoundError;
    }
  }
  ~HeldSuite() {
    if (isHeld_) broker_->ReleaseSuite(name_, version_);
  }
  HeldSuite(const HeldSuite&) = delete;
  HeldSuite& operator=(const HeldSuite&) = delete;

  explicit operator bool() const { return suite_ != nullptr; }
  const Suite* operator->() const { return suite_; }
  [[nodiscard]] host::SPErr Error() const { return error_; }

 private:
  host::SPBasicSuite* broker_;
  const char* name_;
  std::int32_t version_;
  const Suite* suite_ = nullptr;
  bool isHeld_ = false;
  host::SPErr error_ = host::kSPNoError;
};

using DescriptorSuite = HeldSuite<host::PSActionDescriptorProcs>;
using ReferenceSuite = HeldSuite<host::PSActionReferenceProcs>;
using ActionControlSuite = HeldSuite<host::PSBasicActionControlProcs>;
using RegistrySuite = HeldSuite<host::PSDescriptorRegistryProcs>;
using ChannelPortsSuite = HeldSuite<host::PSChannelPortsSuite>;
using ColorSpaceSuite = HeldSuite<host::PSColorSpaceSuite>;

}  // namespace tarnwick
