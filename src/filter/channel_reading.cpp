#include "filter/channel_reading.h"

#include <algorithm>
#include <cstring>

#include "filter/host_rects.h"
#include "filter/host_suites.h"

namespace tarnwick {
namespace {

using host::VRect;

// A suite's errors are wider than the host's, which are negative.
host::OSErr ErrorOf(host::SPErr error) {
  if (error == host::kSPNoError) return host::noErr;
  return error < 0 && error >= INT16_MIN ? static_cast<host::OSErr>(error)
                                         : host::errPlugInHostInsufficient;
}

host::OSErr ReadThroughSuite(const ChannelPortsSuite& suite, host::ChannelPort* port, VRect rect,
                             const host::PixelMemoryDesc& to) {
  host::Boolean canRead = 0;
  const host::OSErr error = ErrorOf(suite->CanRead(port, &canRead));
  if (canRead == 0) return host::errPlugInHostInsufficient;
  if (error != host::noErr) return error;
  return ErrorOf(suite->ReadPixelsFromLevel(port, 0, &rect, &to));
}

host::OSErr ReadThroughRecord(const host::ChannelPortProcs* procs, host::ChannelPort* port,
                              const VRect& rect, const host::PixelMemoryDesc& to) {
  if (procs == nullptr || procs->readPixelsProc == nullptr) return host::errPlugInHostInsufficient;
  const host::PSScaling fullSize = {rect, rect};
  VRect wrote{};
  return procs->readPixelsProc(port, &fullSize, &rect, &to, &wrote);
}

}  // namespace

bool ReadChannelChain(FilterGlobals& g, const host::ReadChannelDesc* channels, RasterImage& image) {
  const host::FilterRecord& record = *g.gFilterRecord;
  *g.gResult = host::noErr;
  std::uint8_t* plane = image.Interior();
  if (plane == nullptr) {
    *g.gResult = host::memFullErr;
    return false;
  }
  const Rect filterRect = GetFilterRect(record);
  const host::VPoint origin = GetFloatCoord(record);
  const std::int64_t bottom =
      std::int64_t{origin.v} + std::min(filterRect.Height(), image.Height());
  const std::int64_t right = std::int64_t{origin.h} + std::min(filterRect.Width(), image.Width());
  if (bottom > INT32_MAX || right > INT32_MAX) {
    *g.gResult = host::filterBadParameters;
    return false;
  }
  const VRect rect = {origin.v, origin.h, static_cast<std::int32_t>(bottom),
                      static_cast<std::int32_t>(right)};
  const ChannelPortsSuite suite(g.gBasicSuite, host::kPSChannelPortsSuite, 2);
  for (int i = 0; channels != nullptr && i < image.planeCount; ++i, channels = channels->next) {
    // A host may read only where the layer has something.
    std::memset(plane, 0, image.PlaneBytes());
    const host::PixelMemoryDesc to = {plane, image.RowBits(), image.SampleBits(), 0,
                                      image.SampleBits()};
    *g.gResult = suite ? ReadThroughSuite(suite, channels->port, rect, to)
                       : ReadThroughRecord(record.channelPortProcs, channels->port, rect, to);
    if (*g.gResult != host::noErr) return false;
    plane += image.PlaneBytes();
  }
  return true;
}

}  // namespace tarnwick
