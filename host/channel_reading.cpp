#include "host/document_description.h"
#include "host/host_procs.h"
#include "host/test_host.h"

namespace tarnwick::testhost {
namespace {

using host::ChannelPort;
using host::PixelMemoryDesc;
using host::SPErr;
using host::VRect;

// What of `rect` lies in the picture.
VRect Clipped(const Document& document, const VRect& rect) {
  const VRect all = document.Bounds();
  return {std::max(rect.top, all.top), std::max(rect.left, all.left),
          std::min(rect.bottom, all.bottom), std::min(rect.right, all.right)};
}

// One plane into the caller's memory, whose first pixel is the top left one of
// `rect`; steps are in bits.
void ReadPlane(const ChannelPort& port, const VRect& rect, const PixelMemoryDesc& to) {
  const Document& document = TheHost().document;
  const Layer& layer = document.layers.at(port.layer);
  const VRect inside = Clipped(document, rect);
  const int bytes = document.SampleBytes();
  for (int y = inside.top; y < inside.bottom; ++y) {
    for (int x = inside.left; x < inside.right; ++x) {
      const std::int64_t bit = std::int64_t{y - rect.top} * to.rowBits +
                               std::int64_t{x - rect.left} * to.colBits + to.bitOffset;
      const std::uint8_t* const from =
          layer.samples.data() + static_cast<std::size_t>(y) * document.RowBytes(layer) +
          static_cast<std::size_t>((x * layer.planes + port.plane) * bytes);
      auto* const place = static_cast<std::uint8_t*>(to.data) + bit / 8;
      for (int i = 0; i < bytes; ++i) place[i] = from[i];
    }
  }
}

bool IsFit(const PixelMemoryDesc* memory) {
  return memory != nullptr && memory->data != nullptr && memory->depth == TheHost().document.depth;
}

bool IsReadable(const ChannelPort* port) {
  const TestHost& host = TheHost();
  return port != nullptr &&
         (host.failures.unreadableLayer.empty() ||
          host.document.layers.at(port->layer).name != host.failures.unreadableLayer);
}

SPErr TARNWICK_HOST_CALL CanRead(ChannelPort* port, host::Boolean* canRead) {
  *canRead = IsReadable(port) ? 1 : 0;
  return host::kSPNoError;
}

SPErr TARNWICK_HOST_CALL ReadPixelsFromLevel(ChannelPort* port, std::int32_t level, VRect* rect,
                                             const PixelMemoryDesc* to) {
  if (!IsReadable(port) || level != 0 || !IsFit(to)) return host::kSPBadParameterError;
  ReadPlane(*port, *rect, *to);
  *rect = Clipped(TheHost().document, *rect);
  return host::kSPNoError;
}

host::OSErr TARNWICK_HOST_CALL ReadPixels(ChannelPort* port, const host::PSScaling* scaling,
                                          const VRect* rect, const PixelMemoryDesc* to,
                                          VRect* wrote) {
  const VRect& a = scaling->sourceRect;
  const VRect& b = scaling->destinationRect;
  const bool isScaled =
      a.right - a.left != b.right - b.left || a.bottom - a.top != b.bottom - b.top;
  if (!IsReadable(port) || isScaled || !IsFit(to)) return host::paramErr;
  ReadPlane(*port, *rect, *to);
  *wrote = Clipped(TheHost().document, *rect);
  return host::noErr;
}

}  // namespace

const void* ChannelPortsTable() {
  static const host::PSChannelPortsSuite table = [] {
    host::PSChannelPortsSuite suite{};
    suite.CanRead = CanRead;
    suite.ReadPixelsFromLevel = ReadPixelsFromLevel;
    return suite;
  }();
  return &table;
}

host::ChannelPortProcs* ChannelPortTable() {
  static host::ChannelPortProcs table = {1, 3, ReadPixels, nullptr, nullptr};
  return &table;
}

}  // namespace tarnwick::testhost
