#include "engine/picture_io.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "imaging/nearest_places.h"

namespace tarnwick {
namespace {

// The converter counts in 16 bits.
constexpr int kMaxConverted = 32767;

void FetchRgbRow(const std::uint8_t* in, int planes, const std::vector<std::ptrdiff_t>& columns,
                 std::uint8_t* out) {
  for (const std::ptrdiff_t column : columns) {
    const std::uint8_t* const pixel = in + column * planes;
    // One plane stands for grey: it serves all colours.
    const int next = planes >= 3 ? 1 : 0;
    out[0] = pixel[0];
    out[1] = pixel[next];
    out[2] = pixel[2 * next];
    out[3] = planes >= 4 ? pixel[3] : 255;
    out += 4;
  }
}

// `work` is one row of 4-byte pixels.
bool FetchCmykRow(const PictureJob& job, const std::uint8_t* in,
                  const std::vector<std::ptrdiff_t>& columns, std::vector<std::uint8_t>& work,
                  std::uint8_t* out) {
  const auto count = static_cast<int>(columns.size());
  for (int start = 0; start < count; start += kMaxConverted) {
    const int part = std::min(count - start, kMaxConverted);
    for (int x = 0; x < part; ++x) {
      const std::ptrdiff_t column = columns[static_cast<std::size_t>(start + x)];
      std::memcpy(work.data() + 4 * x, in + column * job.planes, 4);
    }
    if (!job.converter->CmykToRgb(work.data(), part)) return false;
    for (int x = 0; x < part; ++x) {
      std::uint8_t* const pixel = out + 4 * (start + x);
      std::memcpy(pixel, work.data() + 4 * x + 1, 3);
      const std::ptrdiff_t column = columns[static_cast<std::size_t>(start + x)];
      pixel[3] = job.planes >= 5 ? in[column * job.planes + 4] : 255;
    }
  }
  return true;
}

std::uint8_t Premultiplied(int channel, int alpha) {
  const float factor = static_cast<float>(alpha) / 255.0F;
  return static_cast<std::uint8_t>(static_cast<int>(static_cast<float>(channel) * factor));
}

void WriteRgbRow(const std::uint8_t* in, int width, int planes, std::uint8_t* out) {
  for (int x = 0; x < width; ++x, in += 4, out += planes) {
    if (planes >= 4) {
      std::memcpy(out, in, 4);
      continue;
    }
    for (int c = 0; c < std::min(planes, 3); ++c) {
      out[c] = in[3] == 255 ? in[c] : Premultiplied(in[c], in[3]);
    }
  }
}

bool WriteCmykRow(const PictureJob& job, const std::uint8_t* in, int width,
                  std::vector<std::uint8_t>& work, std::uint8_t* out) {
  // Odd, and kept: one conversion a row, so what lies beyond it keeps its values.
  const int part = std::min(width, kMaxConverted);
  for (int x = 0; x < part; ++x) {
    const std::uint8_t* const pixel = in + 4 * x;
    std::uint8_t* const packed = work.data() + 4 * x;
    packed[0] = 255;
    for (int c = 0; c < 3; ++c) {
      packed[c + 1] = job.planes >= 5 ? pixel[c] : Premultiplied(pixel[c], pixel[3]);
    }
  }
  if (!job.converter->RgbToCmyk(work.data(), part)) return false;
  for (int x = 0; x < part; ++x) {
    std::uint8_t* const pixel = out + static_cast<std::ptrdiff_t>(x) * job.planes;
    std::memcpy(pixel, work.data() + 4 * x, 4);
    if (job.planes >= 5) pixel[4] = in[4 * x + 3];
  }
  return true;
}

std::vector<std::uint8_t> ConversionRow(int width) {
  return std::vector<std::uint8_t>(static_cast<std::size_t>(std::min(width, kMaxConverted)) * 4);
}

}  // namespace

ApplyOutcome FetchSource(RenderState& state, const PictureJob& job) {
  state.progress.Report(0);
  const std::size_t bytes = state.PixelCount() * 4;
  if (!state.sourcePixels.Allocate(bytes) || !state.outputPixels.Allocate(bytes)) {
    return ApplyOutcome::kOutOfMemory;
  }
  if (state.isCmyk && job.converter == nullptr) return ApplyOutcome::kNoConverter;
  const std::vector<std::ptrdiff_t> columns =
      NearestPlaces(state.viewOriginX, state.renderWidth, state.viewScale, job.width);
  const std::vector<std::ptrdiff_t> rows =
      NearestPlaces(state.viewOriginY, state.renderHeight, state.viewScale, job.height);
  const auto inRow = [&](int y) {
    return job.in + rows[static_cast<std::size_t>(y)] * job.inRowBytes;
  };
  const auto sourceRow = [&](int y) {
    return state.sourcePixels.Data() + static_cast<std::ptrdiff_t>(y) * state.renderRowBytes;
  };
  if (state.isCmyk) {
    // The converter belongs to the calling thread.
    std::vector<std::uint8_t> work = ConversionRow(state.renderWidth);
    for (int y = 0; y < state.renderHeight; ++y) {
      if (!FetchCmykRow(job, inRow(y), columns, work, sourceRow(y))) {
        return ApplyOutcome::kNoConverter;
      }
    }
  } else {
    ForRows(state.pool, 0, state.renderHeight, [&](int first, int last) {
      for (int y = first; y < last; ++y) FetchRgbRow(inRow(y), job.planes, columns, sourceRow(y));
    });
  }
  std::memcpy(state.outputPixels.Data(), state.sourcePixels.Data(), bytes);
  state.progress.Report(5);
  return ApplyOutcome::kDone;
}

void CopyOriginal(const RenderState& state, const PictureJob& job) {
  const std::vector<std::ptrdiff_t> columns =
      NearestPlaces(state.viewOriginX, state.renderWidth, state.viewScale, job.width);
  const std::vector<std::ptrdiff_t> rows =
      NearestPlaces(state.viewOriginY, state.renderHeight, state.viewScale, job.height);
  const auto bytes = static_cast<std::size_t>(std::min(job.planes, 4));
  for (int y = 0; y < state.renderHeight; ++y) {
    const std::uint8_t* const in = job.in + rows[static_cast<std::size_t>(y)] * job.inRowBytes;
    std::uint8_t* out = job.out + y * job.outRowBytes;
    for (const std::ptrdiff_t column : columns) {
      std::memcpy(out, in + column * job.planes, bytes);
      out += job.planes;
    }
  }
}

ApplyOutcome WriteResult(const RenderState& state, const PictureJob& job) {
  const auto resultRow = [&](int y) {
    return state.outputPixels.Data() + static_cast<std::ptrdiff_t>(y) * state.renderRowBytes;
  };
  if (state.isCmyk) {
    std::vector<std::uint8_t> work = ConversionRow(state.renderWidth);
    for (int y = 0; y < state.renderHeight; ++y) {
      if (!WriteCmykRow(job, resultRow(y), state.renderWidth, work,
                        job.out + y * job.outRowBytes)) {
        return ApplyOutcome::kNoConverter;
      }
    }
    return ApplyOutcome::kDone;
  }
  ForRows(state.pool, 0, state.renderHeight, [&](int first, int last) {
    for (int y = first; y < last; ++y) {
      WriteRgbRow(resultRow(y), state.renderWidth, job.planes, job.out + y * job.outRowBytes);
    }
  });
  return ApplyOutcome::kDone;
}

}  // namespace tarnwick
