#pragma once
#include "host_interface/filter_record.h"
#include "imaging/rect.h"

namespace tarnwick {

// The record's rectangles in their 32-bit form. Where the host offers 32-bit
// fields and the module has said that it uses them, those count; else the
// 16-bit fields, widened or narrowed without a check.
[[nodiscard]] Rect GetFilterRect(const host::FilterRecord& record);
[[nodiscard]] Rect GetInRect(const host::FilterRecord& record);
[[nodiscard]] Rect GetOutRect(const host::FilterRecord& record);
[[nodiscard]] host::VPoint GetImageSize(const host::FilterRecord& record);
[[nodiscard]] host::VPoint GetFloatCoord(const host::FilterRecord& record);
void SetInRect(host::FilterRecord& record, const Rect& rect);
void SetOutRect(host::FilterRecord& record, const Rect& rect);
void SetMaskRect(host::FilterRecord& record, const Rect& rect);

// All three request rectangles become empty, in both forms: the host asks for
// nothing more.
void EmptyRequest(host::FilterRecord& record);

}  // namespace tarnwick
