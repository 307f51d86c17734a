#include "filter/channel_reading.h"

#include <algorithm>

#include "filter/host_rects.h"
#include "filter/host_suites.h"

namespace tarnwick {
namespace {

using host::VRect;

// A suite's errors are wider than the host's; none may become a 0 on the way.
host::OSErr ErrorOf(host::SPErr error) {
  if (error == host::kSPNoError) return host::noErr;
  const auto narrow = static_cast<host::OSErr>(error);
  return narrow != host::noErr ? narrow : host::errPlugInHostInsufficient;
}

host::OSErr ReadThroughSuite(const ChannelPortsSuite& suite, host::ChannelPort* port, VRect rect,
                             const host::PixelMemoryDesc& to) {
  host::Boolean canRead = 0;
  if (const host::OSErr error = ErrorOf(suite->CanRead(port, &canRead)); error != host::noErr) {
    return error;
  }
  if (canRead == 0) return host::errPlugInHostInsufficient;
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
  const VRect rect = {origin.v, origin.h, origin.v + std::min(filterRect.Height(), image.Height()),
                      origin.h + std::min(filterRect.Width(), image.Width())};
  const ChannelPortsSuite suite(g.gBasicSuite, host::kPSChannelPortsSuite, 2);
  int planesLeft = image.planeCount;
  for (; channels != nullptr && planesLeft > 0; channels = channels->next, --planesLeft) {
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
