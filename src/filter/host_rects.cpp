#include "filter/host_rects.h"

namespace tarnwick {
namespace {

using host::BigDocumentStruct;
using host::FilterRecord;
using host::Rect16;
using host::VRect;

bool Uses32Bit(const FilterRecord& record) {
  return record.bigDocumentData != nullptr &&
         record.bigDocumentData->PluginUsing32BitCoordinates != 0;
}

Rect Get(const FilterRecord& record, const Rect16& small, VRect BigDocumentStruct::*big) {
  if (!Uses32Bit(record)) return {small.top, small.left, small.bottom, small.right};
  const VRect& rect = record.bigDocumentData->*big;
  return {rect.top, rect.left, rect.bottom, rect.right};
}

void Set(FilterRecord& record, Rect16& small, VRect BigDocumentStruct::*big, const Rect& rect) {
  if (Uses32Bit(record)) {
    record.bigDocumentData->*big = {rect.top, rect.left, rect.bottom, rect.right};
    return;
  }
  small = {static_cast<std::int16_t>(rect.top), static_cast<std::int16_t>(rect.left),
           static_cast<std::int16_t>(rect.bottom), static_cast<std::int16_t>(rect.right)};
}

}  // namespace

Rect GetFilterRect(const FilterRecord& record) {
  return Get(record, record.filterRect, &BigDocumentStruct::filterRect32);
}

Rect GetInRect(const FilterRecord& record) {
  return Get(record, record.inRect, &BigDocumentStruct::inRect32);
}

Rect GetOutRect(const FilterRecord& record) {
  return Get(record, record.outRect, &BigDocumentStruct::outRect32);
}

host::VPoint GetImageSize(const host::FilterRecord& record) {
  if (Uses32Bit(record)) return record.bigDocumentData->imageSize32;
  return {record.imageSize.v, record.imageSize.h};
}

host::VPoint GetFloatCoord(const FilterRecord& record) {
  if (Uses32Bit(record)) return record.bigDocumentData->floatCoord32;
  return {record.floatCoord.v, record.floatCoord.h};
}

void SetInRect(FilterRecord& record, const Rect& rect) {
  Set(record, record.inRect, &BigDocumentStruct::inRect32, rect);
}

void SetOutRect(FilterRecord& record, const Rect& rect) {
  Set(record, record.outRect, &BigDocumentStruct::outRect32, rect);
}

void SetMaskRect(FilterRecord& record, const Rect& rect) {
  Set(record, record.maskRect, &BigDocumentStruct::maskRect32, rect);
}

void EmptyRequest(FilterRecord& record) {
  record.inRect = {};
  record.outRect = {};
  record.maskRect = {};
  SetInRect(record, {});
  SetOutRect(record, {});
  SetMaskRect(record, {});
}

}  // namespace tarnwick
