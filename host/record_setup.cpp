#include "host/record_setup.h"

#include <algorithm>
#include <cstring>

#include "host/host_procs.h"

namespace tarnwick::testhost {
namespace {

host::Boolean TARNWICK_HOST_CALL TestAbort() {
  return 0;
}

void TARNWICK_HOST_CALL Progress(std::int32_t done, std::int32_t total) {
  TheHost().log.progress.emplace_back(done, total);
}

host::OSErr TARNWICK_HOST_CALL AdvanceState() {
  return TheHost().pixels.Advance(TheHost());
}

// A 16-bit field holds what fits into it.
std::int16_t Narrow(int value) {
  return static_cast<std::int16_t>(std::clamp(value, -32768, 32767));
}

std::int16_t CaseOf(const Document& document) {
  const bool hasTransparency =
      document.layers.at(document.target).planes > ColorPlanes(document.mode);
  const int base = hasTransparency ? 4 : 1;
  return static_cast<std::int16_t>(base + (document.selection.empty() ? 0 : 1));
}

void SetCallbacks(TestHost& host, host::FilterRecord& record) {
  const HostOptions& options = host.options;
  record.abortProc = options.abort ? TestAbort : nullptr;
  record.progressProc = options.progress ? Progress : nullptr;
  record.advanceState = options.advance ? AdvanceState : nullptr;
  record.handleProcs = options.handleProcs ? HandleProcTable() : nullptr;
  host.platform.hwnd = host.module != nullptr ? host.module->OwnerWindow() : nullptr;
  record.platformData = &host.platform;
  record.colorServices = options.colorServices ? ServeColors : nullptr;
  record.channelPortProcs = options.channelPorts ? ChannelPortTable() : nullptr;
  record.sSPBasic = options.broker ? BrokerTable() : nullptr;
  // Any address will do: only the access suite looks at it.
  record.plugInRef =
      options.pluginRef ? reinterpret_cast<host::SPPlugin*>(host.recordBytes) : nullptr;
  record.errorString = &host.errorText;
  if (options.descriptors) {
    record.descriptorParameters = &host.descriptorParameters;
    host.descriptorParameters.readDescriptorProcs =
        options.readProcs ? ReadDescriptorTable() : nullptr;
    host.descriptorParameters.writeDescriptorProcs =
        options.writeProcs ? WriteDescriptorTable() : nullptr;
    if (options.emptyProcs) {
      static host::ReadDescriptorProcs readsNothing = {};
      static host::WriteDescriptorProcs writesNothing = {};
      host.descriptorParameters.readDescriptorProcs = &readsNothing;
      host.descriptorParameters.writeDescriptorProcs = &writesNothing;
    }
  }
}

void SetSizes(TestHost& host, host::FilterRecord& record) {
  const Document& document = host.document;
  const host::VRect& rect = document.filterRect;
  record.imageSize = record.wholeSize = {Narrow(document.height), Narrow(document.width)};
  record.filterRect = {Narrow(rect.top), Narrow(rect.left), Narrow(rect.bottom),
                       Narrow(rect.right)};
  record.floatCoord = {Narrow(rect.top), Narrow(rect.left)};
  if (!host.options.bigDocument) return;
  record.bigDocumentData = &host.bigDocument;
  host.bigDocument.imageSize32 = host.bigDocument.wholeSize32 = {document.height, document.width};
  host.bigDocument.filterRect32 = rect;
  host.bigDocument.floatCoord32 = {rect.top, rect.left};
}

void SetPlanes(TestHost& host, host::FilterRecord& record) {
  const Document& document = host.document;
  const int planes = document.layers.at(document.target).planes;
  const int colors = ColorPlanes(document.mode);
  record.planes = static_cast<std::int16_t>(planes);
  record.imageMode = static_cast<std::int16_t>(document.mode);
  record.depth = host.options.depth ? document.depth : 0;
  record.inLayerPlanes = static_cast<std::int16_t>(std::min(planes, colors));
  record.inTransparencyMask = planes > colors ? 1 : 0;
  record.inLayerMasks = planes > colors + 1 ? 1 : 0;
  record.inNonLayerPlanes = static_cast<std::int16_t>(std::max(planes - colors - 2, 0));
  const std::int16_t counts[5] = {record.inLayerPlanes, record.inTransparencyMask,
                                  record.inLayerMasks, 0, record.inNonLayerPlanes};
  std::copy_n(counts, 5, record.outPlaneCounts);
  std::copy_n(counts, 5, record.absPlaneCounts);
}

}  // namespace

std::unique_ptr<DocumentDescription> SetUpRecord(TestHost& host) {
  std::memset(host.recordBytes, 0, sizeof host.recordBytes);
  host.descriptorParameters = {};
  host.bigDocument = {};
  host::FilterRecord& record = host.Record();
  SetCallbacks(host, record);
  record.parameters = host.parameters;
  record.hostSig = host::FourCC("TWHT");
  if (host.document.layers.empty()) return nullptr;
  SetSizes(host, record);
  SetPlanes(host, record);
  record.filterCase = CaseOf(host.document);
  record.maxSpace = host.options.maxSpace;
  record.bufferSpace = -1;
  record.haveMask = host.options.mask && !host.document.selection.empty() ? 1 : 0;
  record.autoMask = host.options.autoMask ? 1 : 0;
  if (host.options.staleMask) record.maskData = host.recordBytes;
  record.imageHRes = record.imageVRes = 72 * host::kFixedOne;
  record.dummyPlaneValue = -1;
  record.inputPadding = record.outputPadding = record.maskPadding = -3;
  record.samplingSupport = static_cast<std::uint8_t>(host.options.sampling);
  record.inputRate = record.maskRate = host::kFixedOne;
  if (!host.options.documentInfo) return nullptr;
  auto description =
      std::make_unique<DocumentDescription>(host.document, host.options.documentLayers);
  record.documentInfo = description->Get();
  return description;
}

}  // namespace tarnwick::testhost
