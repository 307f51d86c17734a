#include "filter/suite_record.h"

#include "filter/suite_parts.h"

namespace tarnwick {

const void* AcquireSuite(host::SPBasicSuite* broker, SuiteRecord& record) {
  if (record.suite != nullptr) return record.suite;
  record.lastError = host::kSPBadParameterError;
  const void* found = nullptr;
  if (broker != nullptr && HasParts(*broker)) {
    record.lastError = broker->AcquireSuite(record.name, record.version, &found);
  }
  if (record.lastError == host::kSPNoError && found == nullptr) {
    broker->ReleaseSuite(record.name, record.version);
    record.lastError = host::kSPSuiteNotFoundError;
  }
  if (record.lastError != host::kSPNoError) {
    throw HostServiceMissing(host::kSPBadParameterError);
  }
  record.suite = found;
  return found;
}

void ReleaseSuite(host::SPBasicSuite* broker, SuiteRecord& record) {
  if (record.suite != nullptr && broker != nullptr) {
    broker->ReleaseSuite(record.name, record.version);
  }
  record.suite = nullptr;
}

}  // namespace tarnwick
