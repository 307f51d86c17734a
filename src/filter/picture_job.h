#pragma once
#include "engine/apply_run.h"
#include "host_interface/filter_record.h"
#include "imaging/rect.h"

namespace tarnwick {

// The record's buffers, as the host has delivered them for `rect`, as a job.
// Samples of a 16-bit document are taken as bytes of rows half as long; such
// documents get no other treatment.
[[nodiscard]] PictureJob JobOf(const host::FilterRecord& record, const Rect& rect);

// Any shape whose squared distances fit 32 bits: a strip may be longer than a
// square's side. Planes for all colours of a CMYK document, and rows as long as
// they have to be.
[[nodiscard]] bool IsRenderable(const PictureJob& job);

}  // namespace tarnwick
