#pragma once
#include <memory>

#include "host/document_description.h"
#include "host/test_host.h"

namespace tarnwick::testhost {

// Fills a zeroed record with everything that stands in it before the first
// selector of a run. The description that it points at is returned and must live
// as long as the run.
[[nodiscard]] std::unique_ptr<DocumentDescription> SetUpRecord(TestHost& host);

}  // namespace tarnwick::testhost
