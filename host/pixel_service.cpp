#include "host/pixel_service.h"

#include <algorithm>
#include <utility>

#include "host/test_host.h"

namespace tarnwick::testhost {
namespace {

using host::Rect16;
using host::VRect;

constexpr std::uint8_t kPadding = 0xE7;
constexpr std::uint8_t kUndefined = 0xA5;  // what a buffer holds that nobody has filled

// Values of the padding fields below the fill values.
constexpr int kEdgeReplication = -1;
constexpr int kNoPadding = -2;

VRect Wide(const Rect16& r) {
  return {r.top, r.left, r.bottom, r.right};
}

bool IsEmpty(const VRect& r) {
  return r.right <= r.left || r.bottom <= r.top;
}

struct Request {
  VRect in, out, mask;
};

// The 32-bit rectangles count as soon as the module has said that it uses them.
Request RequestOf(TestHost& host) {
  const host::FilterRecord& record = host.Record();
  if (record.bigDocumentData != nullptr &&
      record.bigDocumentData->PluginUsing32BitCoordinates != 0) {
    return {record.bigDocumentData->inRect32, record.bigDocumentData->outRect32,
            record.bigDocumentData->maskRect32};
  }
  return {Wide(record.inRect), Wide(record.outRect), Wide(record.maskRect)};
}

host::Fixed UsedRate(const HostOptions& options, host::Fixed asked) {
  if (options.sampling == 0 || asked <= 0) return host::kFixedOne;
  if (options.sampling == 1) {
    return std::max((asked + host::kFixedOne / 2) / host::kFixedOne, 1) * host::kFixedOne;
  }
  return asked;
}

// The place in the picture below a delivered one.
int SourceOf(int at, host::Fixed rate) {
  return static_cast<int>(std::int64_t{at} * rate >> 16);
}

}  // namespace

bool PixelService::IsAsked(TestHost& host) {
  const Request request = RequestOf(host);
  return !IsEmpty(request.in) || !IsEmpty(request.out) || !IsEmpty(request.mask);
}

host::OSErr PixelService::Fill(TestHost& host, Buffer& buffer, const VRect& rect, int low, int high,
                               host::Fixed rate, int padding) {
  const Document& document = host.document;
  const Layer& layer = host.document.Target();
  if (low < 0 || high < low || high >= layer.planes) return host::paramErr;
  const bool isInside = rect.top >= 0 && rect.left >= 0 &&
                        SourceOf(rect.bottom - 1, rate) < document.height &&
                        SourceOf(rect.right - 1, rate) < document.width;
  if (!isInside && padding < kNoPadding) return host::paramErr;
  const int bytesPerPixel = (high - low + 1) * document.SampleBytes();
  const int rowBytes = (rect.right - rect.left) * bytesPerPixel + host.options.rowPadding;
  buffer.rect = rect;
  buffer.low = low;
  buffer.high = high;
  buffer.rowBytes = rowBytes;
  buffer.bytes.assign(
      static_cast<std::size_t>(rowBytes) * static_cast<std::size_t>(rect.bottom - rect.top),
      kPadding);
  std::uint8_t* row = buffer.bytes.data();
  for (int y = rect.top; y < rect.bottom; ++y, row += rowBytes) {
    std::uint8_t* to = row;
    for (int x = rect.left; x < rect.right; ++x, to += bytesPerPixel) {
      const int sx = SourceOf(x, rate);
      const int sy = SourceOf(y, rate);
      const int cx = std::clamp(sx, 0, document.width - 1);
      const int cy = std::clamp(sy, 0, document.height - 1);
      if ((sx != cx || sy != cy) && padding != kEdgeReplication) {
        std::fill_n(to, bytesPerPixel,
                    padding >= 0 ? static_cast<std::uint8_t>(padding) : kUndefined);
        continue;
      }
      const std::uint8_t* const from =
          layer.samples.data() + static_cast<std::size_t>(cy) * document.RowBytes(layer) +
          static_cast<std::size_t>((cx * layer.planes + low) * document.SampleBytes());
      std::copy_n(from, bytesPerPixel, to);
    }
  }
  buffer.delivered = buffer.bytes;
  buffer.isOpen = true;
  return host::noErr;
}

host::OSErr PixelService::FillMask(TestHost& host, const VRect& rect, host::Fixed rate,
                                   int padding) {
  const Document& document = host.document;
  const int rowBytes = rect.right - rect.left + host.options.rowPadding;
  mask_.rect = rect;
  mask_.rowBytes = rowBytes;
  mask_.bytes.assign(
      static_cast<std::size_t>(rowBytes) * static_cast<std::size_t>(rect.bottom - rect.top),
      kPadding);
  for (int y = rect.top; y < rect.bottom; ++y) {
    for (int x = rect.left; x < rect.right; ++x) {
      const int sx = SourceOf(x, rate);
      const int sy = SourceOf(y, rate);
      const bool isInside = sx >= 0 && sy >= 0 && sx < document.width && sy < document.height;
      if (!isInside && (padding < 0 || padding > 255)) return host::paramErr;
      mask_.bytes[static_cast<std::size_t>((y - rect.top) * rowBytes + x - rect.left)] =
          isInside ? document.selection[static_cast<std::size_t>(sy * document.width + sx)]
                   : static_cast<std::uint8_t>(padding);
    }
  }
  mask_.delivered = mask_.bytes;
  mask_.isOpen = true;
  return host::noErr;
}

void PixelService::CheckInput(TestHost& host) const {
  if (in_.isOpen && in_.bytes != in_.delivered) {
    host.log.faults.emplace_back("the input was written to");
  }
  if (mask_.isOpen && mask_.bytes != mask_.delivered) {
    host.log.faults.emplace_back("the mask was written to");
  }
}

void PixelService::Commit(TestHost& host) {
  if (!out_.isOpen) return;
  Document& document = host.document;
  Layer& layer = host.document.Target();
  const bool clips = host.Record().autoMask != 0 && !document.selection.empty();
  const int bytesPerPixel = (out_.high - out_.low + 1) * document.SampleBytes();
  const int pixelBytes = (out_.rect.right - out_.rect.left) * bytesPerPixel;
  const std::uint8_t* row = out_.bytes.data();
  for (int y = out_.rect.top; y < out_.rect.bottom; ++y, row += out_.rowBytes) {
    if (std::any_of(row + pixelBytes, row + out_.rowBytes,
                    [](std::uint8_t b) { return b != kPadding; })) {
      host.log.faults.emplace_back("the padding of the output was written to");
    }
    const std::uint8_t* from = row;
    for (int x = out_.rect.left; x < out_.rect.right; ++x, from += bytesPerPixel) {
      std::uint8_t* const to =
          layer.samples.data() + static_cast<std::size_t>(y) * document.RowBytes(layer) +
          static_cast<std::size_t>((x * layer.planes + out_.low) * document.SampleBytes());
      const int share =
          clips ? document.selection[static_cast<std::size_t>(y * document.width + x)] : 255;
      for (int i = 0; i < bytesPerPixel; ++i) {
        to[i] = static_cast<std::uint8_t>((from[i] * share + to[i] * (255 - share) + 127) / 255);
      }
    }
  }
  out_ = {};
}

host::OSErr PixelService::Advance(TestHost& host) {
  ++host.log.advances;
  host::FilterRecord& record = host.Record();
  CheckInput(host);
  Commit(host);
  record.inData = record.outData = record.maskData = nullptr;
  record.inRowBytes = record.outRowBytes = record.maskRowBytes = 0;
  in_ = {};
  mask_ = {};
  if (const host::OSErr error = std::exchange(host.failures.advance, host::noErr);
      error != host::noErr) {
    return error;
  }
  const Request request = RequestOf(host);
  if (record.haveMask != 0 && !IsEmpty(request.mask)) {
    const host::OSErr error =
        FillMask(host, request.mask, UsedRate(host.options, record.maskRate), record.maskPadding);
    if (error != host::noErr) return error;
    record.maskData = mask_.bytes.data();
    record.maskRowBytes = mask_.rowBytes;
  }
  if (!IsEmpty(request.in)) {
    const host::OSErr error = Fill(host, in_, request.in, record.inLoPlane, record.inHiPlane,
                                   UsedRate(host.options, record.inputRate), record.inputPadding);
    if (error != host::noErr) return error;
    record.inData = in_.bytes.data();
    record.inRowBytes = in_.rowBytes;
    record.inPlaneBytes = host.document.SampleBytes();
    record.inColumnBytes = (in_.high - in_.low + 1) * record.inPlaneBytes;
  }
  if (!IsEmpty(request.out)) {
    const host::OSErr error = Fill(host, out_, request.out, record.outLoPlane, record.outHiPlane,
                                   host::kFixedOne, record.outputPadding);
    if (error != host::noErr) return error;
    record.outData = out_.bytes.data();
    record.outRowBytes = out_.rowBytes;
    record.outPlaneBytes = host.document.SampleBytes();
    record.outColumnBytes = (out_.high - out_.low + 1) * record.outPlaneBytes;
  }
  return host::noErr;
}

void PixelService::Close(TestHost& host) {
  CheckInput(host);
  Commit(host);
  in_ = {};
  mask_ = {};
  host::FilterRecord& record = host.Record();
  record.inData = record.outData = record.maskData = nullptr;
}

}  // namespace tarnwick::testhost
