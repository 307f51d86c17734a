// What a page shows, and what of it can be used.
#include <windows.h>

#include "controls/control_classes.h"
#include "dialog/models/page_values.h"
#include "dialog/pages/settings_page.h"
#include "dialog/presets/preset_library.h"
#include "engine/texture_offset.h"
#include "textures/texture_record.h"

namespace tarnwick {
namespace {

bool HasFocus(HWND window) {
  const HWND focus = GetFocus();
  return focus != nullptr && (focus == window || IsChild(window, focus) != FALSE);
}

}  // namespace

void SettingsPage::ShowValues() {
  for (const ControlRow& row : RowsOf(tab_)) ShowRow(row);
  Enable();
  for (const PresetList& list : kPresetLists) {
    if (list.tab == tab_) context_.presets.UpdateDelete(window_, list.kind);
  }
}

void SettingsPage::ShowRow(const ControlRow& row) {
  const std::int32_t value = context_.edits.Value(tab_, row);
  switch (row.kind) {
    case RowKind::kValue:
      if (TMacSlider* const slider = Slider(row); slider != nullptr) {
        SetSliderValue(*slider, static_cast<float>(value), false);
      }
      break;
    case RowKind::kCheck:
      SendMessageA(Item(row.id), BM_SETCHECK, value != 0 ? BST_CHECKED : BST_UNCHECKED, 0);
      break;
    case RowKind::kRadio:
      SendMessageA(Item(row.id), BM_SETCHECK, value != 0 ? BST_CHECKED : BST_UNCHECKED, 0);
      SendMessageA(Item(row.editId), BM_SETCHECK, value != 0 ? BST_UNCHECKED : BST_CHECKED, 0);
      break;
    case RowKind::kChoice:
      SendMessageA(Item(row.id), CB_SETCURSEL, static_cast<WPARAM>(value), 0);
      break;
    case RowKind::kSwatch:
      if (auto* const swatch = GetControlRecord<ColorSwatch>(Item(row.id), kSwatchClass);
          swatch != nullptr) {
        swatch->color = static_cast<COLORREF>(value);
        RedrawControl(swatch->window);
      }
      break;
    case RowKind::kTexture: {
      const EffectSettings& settings = *context_.g.gParams;
      const char* const name = TextureNameOf(tab_, context_.views, settings);
      SetDlgItemTextA(window_, row.id, TextureDisplayName(name).c_str());
      break;
    }
    case RowKind::kColors:
      SetDlgItemTextA(window_, row.id,
                      (tab_ == kSurfaceTab ? context_.g.session.SurfaceColorCategory
                                           : context_.g.session.BackgroundColorCategory)
                          .c_str());
      break;
    case RowKind::kSeedField:
      SetDlgItemTextA(window_, row.id, WholeText(value).c_str());
      break;
    case RowKind::kLight:
      if (auto* const ball = GetControlRecord<Rotor>(Item(row.id), kRotorClass); ball != nullptr) {
        SetRotorAngles(*ball, context_.g.gParams->SurfaceLightAlpha,
                       context_.g.gParams->SurfaceLightBeta);
      }
      break;
    case RowKind::kOffset:
      ShowOffset();
      break;
    case RowKind::kTurn:
    case RowKind::kLink:
    case RowKind::kPickTexture:
    case RowKind::kPickColors:
    case RowKind::kDraw:
      break;
  }
}

TextureOffset SettingsPage::OffsetNow(TextureOffset& range) const {
  FilterGlobals& g = context_.g;
  const std::optional<LayerSlot> slot = ActiveSlot(tab_, context_.views, g.layers, *g.gParams);
  if (!slot) return {};
  const OffsetRange offset = GetOffset(*slot->layer, g.render);
  range = {offset.rangeX, offset.rangeY};
  return {offset.x, offset.y};
}

void SettingsPage::ShowOffset() {
  for (const ControlRow& row : RowsOf(tab_)) {
    if (row.kind != RowKind::kOffset) continue;
    TextureOffset range{};
    const TextureOffset offset = OffsetNow(range);
    if (auto* const ball = GetControlRecord<Rotor>(Item(row.id), kRotorClass); ball != nullptr) {
      SetRotorOffset(*ball, BallOfOffset(offset, range));
    }
    SetDlgItemTextA(window_, row.editId, WholeText(offset.x).c_str());
    SetDlgItemTextA(window_, row.spinId, WholeText(offset.y).c_str());
  }
}

void SettingsPage::Enable() {
  const TextureMatches matches = context_.edits.Update();
  const PageFacts facts = context_.edits.Facts(tab_, matches);
  for (const ControlRow& row : RowsOf(tab_)) {
    if (row.kind == RowKind::kLink) ShowLink(row, matches);
    EnableRow(row, facts);
  }
  for (const int group : GroupsOf(tab_)) EnableItem(group, IsEnabled(RowNeeds::kView, facts));
}

void SettingsPage::EnableRow(const ControlRow& row, const PageFacts& facts) {
  const bool isOn = IsEnabled(row.needs, facts);
  EnableItem(row.id, isOn);
  // A slider hands it on to the two beside it, but only when its own state changes.
  for (const int id : {row.editId, row.spinId, row.labelId, row.secondLabelId}) {
    if (id != 0) EnableItem(id, isOn);
  }
}

void SettingsPage::EnableItem(int id, bool isOn) {
  const HWND item = Item(id);
  if (item == nullptr || (IsWindowEnabled(item) != FALSE) == isOn) return;
  // A disabled control would keep the keys to itself, Enter and Escape among them.
  if (!isOn && HasFocus(item)) {
    SendMessageA(context_.dialog, WM_NEXTDLGCTL,
                 reinterpret_cast<WPARAM>(GetDlgItem(context_.dialog, IDOK)), TRUE);
  }
  EnableWindow(item, isOn ? TRUE : FALSE);
}

void SettingsPage::ShowLink(const ControlRow& row, const TextureMatches& matches) {
  const LayerKind kind = KindOfTab(tab_);
  const bool isLinked = HasMatch(kind, matches) && LinkFlagOf(kind, context_.g.session) != 0;
  SendMessageA(Item(row.id), BM_SETCHECK, isLinked ? BST_CHECKED : BST_UNCHECKED, 0);
  InvalidateRect(Item(row.id), nullptr, FALSE);
}

}  // namespace tarnwick
