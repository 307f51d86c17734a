#include "dialog/preview/preview_pixels.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "base/truncate.h"
#include "dialog/preview/unfiltered_document.h"
#include "engine/picture_io.h"
#include "filter/document_pixels.h"
#include "filter/host_colors.h"
#include "filter/host_rects.h"
#include "filter/picture_job.h"
#include "imaging/nearest_places.h"

namespace tarnwick {
namespace {

constexpr std::int16_t kPadding = 255;

// The window in the host's pixels at that scale. A selection's rectangle need not
// start where one of them does: the one that holds its corner is the first.
Rect WindowAt(const Rect& picture, const PaneZoom& zoom) {
  const auto shown = [&](int at) {
    return TruncateToInt(static_cast<double>(at) / static_cast<double>(zoom.viewScale));
  };
  const int left = WrappingAdd(shown(picture.left), zoom.panX);
  const int top = WrappingAdd(shown(picture.top), zoom.panY);
  return {top, left, WrappingAdd(top, zoom.proxy.height), WrappingAdd(left, zoom.proxy.width)};
}

// Runs `work` on the delivered window as a picture of its own.
template <typename Work>
void AsPicture(RenderState& state, const Work& work) {
  const float scale = std::exchange(state.viewScale, 1.0F);
  const std::int32_t x = std::exchange(state.viewOriginX, 0);
  const std::int32_t y = std::exchange(state.viewOriginY, 0);
  work();
  state.viewScale = scale;
  state.viewOriginX = x;
  state.viewOriginY = y;
}

bool HasPixels(const ImagePtr& image) {
  return image != nullptr && image->PeekInterior() != nullptr;
}

}  // namespace

void PreviewPixels::Request(FilterGlobals& g, const PaneZoom& zoom) {
  host::FilterRecord& record = *g.gFilterRecord;
  RenderState& state = g.render;
  const Rect window = WindowAt(GetFilterRect(record), zoom);
  size_ = {std::max(zoom.proxy.width, 0), std::max(zoom.proxy.height, 0)};
  SetInRect(record, window);
  SetOutRect(record, window);
  SetMaskRect(record, window);
  record.inLoPlane = record.outLoPlane = 0;
  record.inHiPlane = record.outHiPlane = static_cast<std::int16_t>(record.planes - 1);
  // Up to 32767 document pixels a shown one; more is more than any document has.
  record.inputRate = record.maskRate = TruncateToInt(static_cast<double>(zoom.viewScale) * 65536);
  record.inputPadding = record.outputPadding = record.maskPadding = kPadding;
  *g.gResult =
      record.advanceState != nullptr ? record.advanceState() : host::errPlugInHostInsufficient;

  state.viewScale = zoom.viewScale;
  state.viewOriginX = zoom.panX;
  state.viewOriginY = zoom.panY;
  state.renderWidth = size_.width;
  state.renderHeight = size_.height;
  state.renderRowBytes = size_.width * 4;
  result_.clear();
  selection_.clear();
  state.selection = nullptr;
  state.hasSelection = false;
  if (*g.gResult != host::noErr) return;
  const PictureJob delivered = JobOf(record, window);
  TakeSelection(g, delivered);
  if (IsRenderable(delivered)) TakeOutput(record);
}

void PreviewPixels::KeepSelection(const FilterGlobals& g) {
  wholeSelection_.Free();
  if (*g.gResult != host::noErr) return;
  const PictureJob job = JobOf(*g.gFilterRecord, GetInRect(*g.gFilterRecord));
  if (job.selection == nullptr || !IsRenderable(job)) return;
  const auto width = static_cast<std::size_t>(job.width);
  if (!wholeSelection_.Allocate(width * static_cast<std::size_t>(job.height))) return;
  wholeSize_ = {job.width, job.height};
  for (int y = 0; y < job.height; ++y) {
    std::memcpy(wholeSelection_.Data() + static_cast<std::size_t>(y) * width,
                job.selection + y * job.selectionRowBytes, width);
  }
}

void PreviewPixels::TakeSelection(FilterGlobals& g, const PictureJob& delivered) {
  if (size_.width < 1 || size_.height < 1) return;
  const auto width = static_cast<std::size_t>(size_.width);
  std::uint8_t* to = nullptr;
  if (wholeSelection_) {
    const RenderState& state = g.render;
    const auto columns =
        NearestPlaces(state.viewOriginX, size_.width, state.viewScale, wholeSize_.width);
    const auto rows =
        NearestPlaces(state.viewOriginY, size_.height, state.viewScale, wholeSize_.height);
    selection_.resize(width * rows.size());
    to = selection_.data();
    for (const std::ptrdiff_t row : rows) {
      const std::uint8_t* const from = wholeSelection_.Data() + row * wholeSize_.width;
      for (const std::ptrdiff_t column : columns) *to++ = from[column];
    }
  } else if (delivered.selection != nullptr && delivered.selectionRowBytes >= size_.width) {
    selection_.resize(width * static_cast<std::size_t>(size_.height));
    to = selection_.data();
    for (int y = 0; y < size_.height; ++y, to += width) {
      std::memcpy(to, delivered.selection + y * delivered.selectionRowBytes, width);
    }
  }
  if (to == nullptr) return;
  g.render.selection = selection_.data();
  g.render.selectionRowBytes = size_.width;
  g.render.hasSelection = true;
}

void PreviewPixels::TakeOutput(const host::FilterRecord& record) {
  is16Bit_ = record.depth == 16;
  planes_ = record.planes;
  isCmyk_ = record.imageMode == host::plugInModeCMYKColor;
  rowBytes_ = record.outRowBytes;
  const std::ptrdiff_t pixels = std::ptrdiff_t{size_.width} * planes_ * (is16Bit_ ? 2 : 1);
  if (record.outData == nullptr || rowBytes_ < pixels) return;
  result_.resize(static_cast<std::size_t>(rowBytes_) * static_cast<std::size_t>(size_.height));
  // The last row of a host need not be padded.
  const auto* const from = static_cast<const std::uint8_t*>(record.outData);
  for (std::ptrdiff_t y = 0; y < size_.height; ++y) {
    std::memcpy(result_.data() + y * rowBytes_, from + y * rowBytes_,
                static_cast<std::size_t>(pixels));
  }
}

void PreviewPixels::FetchSource(FilterGlobals& g) {
  RenderState& state = g.render;
  backdrop_.clear();
  if (size_.width < 1 || size_.height < 1) return;
  PictureJob job = JobOf(*g.gFilterRecord, GetInRect(*g.gFilterRecord));
  HostRowConverter converter(state.isCmyk ? g.gBasicSuite : nullptr);
  job.converter = converter.IsThere() ? &converter : nullptr;
  job.pool = state.pool;
  state.progress.Report(0);
  // Black and transparent where there is nothing to take.
  const std::size_t bytes = state.PixelCount() * 4;
  if (!state.sourcePixels.Allocate(bytes) || !state.outputPixels.Allocate(bytes)) return;
  if (ShowsDocumentCopy(g)) {
    CopyDocumentToPixels(g, false);
    std::memcpy(state.outputPixels.Data(), state.sourcePixels.Data(), bytes);
  } else if (*g.gResult == host::noErr && job.in != nullptr && IsRenderable(job) &&
             job.width == size_.width && job.height == size_.height) {
    // Without a converter, or memory, it stays as it is.
    AsPicture(state, [&] { (void)tarnwick::FetchSource(state, job); });
  }
  if (HasPixels(g.layersBelow)) {
    backdrop_ = BuildBackdrop(*g.layersBelow, {state.viewOriginX, state.viewOriginY, size_.width,
                                               size_.height, state.viewScale});
  }
}

void PreviewPixels::WriteRender(const FilterGlobals& g) {
  const RenderState& state = g.render;
  if (result_.empty() || state.outputPixels.Size() != state.PixelCount() * 4) return;
  PictureJob job = JobOf(*g.gFilterRecord, {0, 0, size_.height, size_.width});
  HostRowConverter converter(state.isCmyk ? g.gBasicSuite : nullptr);
  job.converter = converter.IsThere() ? &converter : nullptr;
  job.planes = planes_;
  job.pool = state.pool;
  job.out = result_.data();
  job.outRowBytes = is16Bit_ ? rowBytes_ / 2 : rowBytes_;
  if (state.isCmyk && job.converter == nullptr) return;
  (void)WriteResult(state, job);
}

void PreviewPixels::WriteOriginal(FilterGlobals& g) {
  if (result_.empty()) return;
  RenderState& state = g.render;
  const bool areInks = state.isCmyk && HostRowConverter(g.gBasicSuite).IsThere();
  if (areInks && state.outputPixels && state.sourcePixels.Size() == state.outputPixels.Size()) {
    // The way of a rendered view: as they stand, black would pass for transparency.
    std::memcpy(state.outputPixels.Data(), state.sourcePixels.Data(), state.sourcePixels.Size());
    return WriteRender(g);
  }
  PictureJob job = JobOf(*g.gFilterRecord, GetInRect(*g.gFilterRecord));
  job.planes = planes_;
  job.out = result_.data();
  job.outRowBytes = is16Bit_ ? rowBytes_ / 2 : rowBytes_;
  if (ShowsDocumentCopy(g)) {
    // sourcePixels are just that: the copy's samples in this window.
    if (g.render.sourcePixels.Size() != g.render.PixelCount() * 4) return;
    const int planes = std::min(planes_, 4);
    for (std::ptrdiff_t y = 0; y < size_.height; ++y) {
      const std::uint8_t* from = g.render.sourcePixels.Data() + y * g.render.renderRowBytes;
      std::uint8_t* to = job.out + y * job.outRowBytes;
      for (int x = 0; x < size_.width; ++x, from += 4, to += planes_) {
        std::memcpy(to, from, static_cast<std::size_t>(planes));
      }
    }
  } else if (job.in != nullptr && IsRenderable(job) && job.width == size_.width &&
             job.height == size_.height) {
    for (std::ptrdiff_t y = 0; y < size_.height; ++y) {
      std::memcpy(job.out + y * job.outRowBytes, job.in + y * job.inRowBytes,
                  static_cast<std::size_t>(size_.width) * static_cast<std::size_t>(planes_));
    }
  }
}

std::vector<std::uint8_t> PreviewPixels::SampleSelection(
    const std::vector<std::ptrdiff_t>& columns, const std::vector<std::ptrdiff_t>& rows) const {
  std::vector<std::uint8_t> selection;
  if (!wholeSelection_) return selection;
  selection.reserve(columns.size() * rows.size());
  for (const std::ptrdiff_t row : rows) {
    const auto y = std::clamp<std::ptrdiff_t>(row, 0, wholeSize_.height - 1);
    for (const std::ptrdiff_t column : columns) {
      const auto x = std::clamp<std::ptrdiff_t>(column, 0, wholeSize_.width - 1);
      selection.push_back(wholeSelection_.Data()[y * wholeSize_.width + x]);
    }
  }
  return selection;
}

PaneSource PreviewPixels::Result() const {
  if (result_.empty()) return {};
  return {result_.data(), rowBytes_, planes_, is16Bit_, isCmyk_};
}

}  // namespace tarnwick
