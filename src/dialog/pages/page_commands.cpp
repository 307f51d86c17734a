// What a page does when its controls tell it that they have changed.
#include <windows.h>

#include <algorithm>
#include <cmath>

#include "base/truncate.h"
#include "controls/control_classes.h"
#include "dialog/dialog_commands.h"
#include "dialog/models/page_values.h"
#include "dialog/pages/link_offer.h"
#include "dialog/pages/name_field.h"
#include "dialog/pages/settings_page.h"
#include "dialog/presets/preset_library.h"

namespace tarnwick {
namespace {

// Notifications of an edit field that commit what stands in it.
constexpr WORD kFieldEntered = 13;
constexpr WORD kFieldReturned = 0x0501;

bool IsCommit(WORD notification) {
  return notification == kFieldEntered || notification == EN_KILLFOCUS ||
         notification == kFieldReturned;
}

constexpr int kSaveSurfaceColors = 1302;
constexpr int kSaveBackgroundColors = 1400;

}  // namespace

bool SettingsPage::Command(WPARAM wParam, LPARAM lParam) {
  (void)lParam;
  const int id = LOWORD(wParam);
  const WORD notification = HIWORD(wParam);
  if (id == kShowAllPages) {
    context_.showAll();
    return true;
  }
  if (id == kSaveSurfaceColors && tab_ == kSurfaceTab) {
    context_.presets.Save(PresetKind::kSurfaceColor);
    return true;
  }
  if (id == kSaveBackgroundColors && tab_ == kBackgroundTab) {
    context_.presets.Save(PresetKind::kBackgroundColor);
    return true;
  }
  for (const ControlRow& row : RowsOf(tab_)) {
    if (id == row.id || (id != 0 && (id == row.editId || id == row.spinId))) {
      return RowCommand(row, id, notification);
    }
  }
  if (notification == LBN_SELCHANGE) FlushSpin();
  return context_.presets.Command(window_, wParam);
}

bool SettingsPage::RowCommand(const ControlRow& row, int id, WORD notification) {
  const bool isField = id != row.id;
  switch (row.kind) {
    case RowKind::kValue:
      if (!isField) {
        if (const TMacSlider* const slider = Slider(row); slider != nullptr) {
          Set(row, TruncateToInt(static_cast<double>(slider->value)));
        }
      } else if (id == row.editId && notification == kEditCancelled) {
        UndoField(row.editId, FieldText(row, row.editId));
      } else if (id == row.editId && IsCommit(notification)) {
        CommitValue(row);
      }
      break;
    case RowKind::kCheck:
      if (notification != BN_CLICKED) break;
      Set(row, SendMessageA(Item(row.id), BM_GETCHECK, 0, 0) == BST_CHECKED ? 1 : 0);
      break;
    case RowKind::kRadio:
      if (notification == BN_CLICKED) ClickRadio(row, id);
      break;
    case RowKind::kChoice:
      if (notification == CBN_SELCHANGE) {
        const LRESULT chosen = SendMessageA(Item(row.id), CB_GETCURSEL, 0, 0);
        if (chosen >= 0) Set(row, static_cast<std::int32_t>(chosen));
      }
      break;
    case RowKind::kSwatch:
      if (const auto* const swatch = GetControlRecord<ColorSwatch>(Item(row.id), kSwatchClass);
          swatch != nullptr) {
        Set(row, static_cast<std::int32_t>(swatch->color));
      }
      break;
    case RowKind::kTurn:
      if (notification == BN_CLICKED) Set(row, 0);
      break;
    case RowKind::kLink:
      if (notification == BN_CLICKED) ClickLink();
      break;
    case RowKind::kPickTexture:
      if (notification == BN_CLICKED) context_.openTextures(tab_);
      break;
    case RowKind::kPickColors:
      if (notification == BN_CLICKED) context_.openColors(tab_);
      break;
    case RowKind::kSeedField:
      if (notification == kEditCancelled) {
        UndoField(row.id, FieldText(row, row.id));
      } else if (IsCommit(notification)) {
        CommitSeed(row);
      }
      break;
    case RowKind::kDraw:
      if (notification == BN_CLICKED) TakeSeed(row, context_.dice.Below(kSeeds));
      break;
    case RowKind::kLight:
      if (!isField) {
        if (const auto* const ball = GetControlRecord<Rotor>(Item(row.id), kRotorClass);
            ball != nullptr) {
          FinishSpin();
          context_.edits.SetLight(ball->angles.azimuth, ball->angles.altitude);
          Changed();
        }
      } else if (notification == kEditCancelled) {
        UndoField(id, FieldText(row, id));
      } else if (IsCommit(notification)) {
        CommitLight(row, id);
      }
      break;
    case RowKind::kOffset:
      if (!isField) {
        DragOffset(row);
      } else if (notification == kEditCancelled) {
        UndoField(id, FieldText(row, id));
      } else if (IsCommit(notification)) {
        CommitOffset(row, id);
      }
      break;
    case RowKind::kTexture:
      if (notification == kNameDoubleClicked) context_.openFullSize(tab_);
      break;
    case RowKind::kColors:
      break;
  }
  return true;
}

void SettingsPage::Changed() {
  // What a click on an up-down has put off is seen with it.
  if (spinTimer_ != 0 && spinRow_ == nullptr) {
    KillTimer(window_, spinTimer_);
    spinTimer_ = 0;
  }
  SendMessageA(context_.dialog, WM_COMMAND, kSettingsChanged, 0);
}

void SettingsPage::Set(const ControlRow& row, std::int32_t value) {
  FinishSpin();
  context_.edits.Set(tab_, row, value);
  if (row.makesCustom) {
    for (const ControlRow& other : RowsOf(tab_)) {
      if (other.kind == RowKind::kColors) ShowRow(other);
    }
  }
  if (row.isLinked && row.kind == RowKind::kValue) ShowOffset();
  if (row.kind == RowKind::kTurn) ShowOffset();
  Enable();
  Changed();
}

void SettingsPage::ClickRadio(const ControlRow& row, int id) {
  const std::int32_t value = id == row.id ? 1 : 0;
  if (value != context_.edits.Value(tab_, row)) Set(row, value);
}

std::string SettingsPage::TextOf(int id) const {
  char text[kMaxValueText + 1] = "";
  GetDlgItemTextA(window_, id, text, sizeof text);
  return text;
}

// What a field of the row says when nobody has typed in it.
std::string SettingsPage::FieldText(const ControlRow& row, int editId) const {
  if (row.kind == RowKind::kLight) {
    const EffectSettings& settings = *context_.g.gParams;
    return AngleText(editId == row.editId ? settings.SurfaceLightAlpha : settings.SurfaceLightBeta);
  }
  if (row.kind == RowKind::kOffset) {
    TextureOffset range{};
    const TextureOffset offset = OffsetNow(range);
    return WholeText(editId == row.editId ? offset.x : offset.y);
  }
  return WholeText(context_.edits.Value(tab_, row));
}

void SettingsPage::CommitValue(const ControlRow& row) {
  TMacSlider* const slider = Slider(row);
  if (slider == nullptr) return;
  const float value = std::clamp(ParseValue(TextOf(row.editId)), static_cast<float>(row.minimum),
                                 static_cast<float>(row.maximum));
  if (value == slider->value) {
    // Beyond the end that it is at, or with zeros in front.
    const std::string shown = FieldText(row, row.editId);
    if (TextOf(row.editId) != shown) SetDlgItemTextA(window_, row.editId, shown.c_str());
    return;
  }
  SetSliderValue(*slider, value, false);
  Set(row, TruncateToInt(static_cast<double>(value)));
}

// Odd, and kept: with nothing to undo the dialog closes, and the settings stay as they
// are.
void SettingsPage::UndoField(int editId, const std::string& text) {
  if (TextOf(editId) == text) {
    context_.leave();
  } else {
    SetDlgItemTextA(window_, editId, text.c_str());
  }
}

void SettingsPage::CommitSeed(const ControlRow& row) {
  const std::int32_t seed = SeedOf(ParseWhole(TextOf(row.id)));
  if (seed != context_.edits.Value(tab_, row)) TakeSeed(row, seed);
}

// Odd, and kept: the new seed is printed as Escape would print it, so a number that
// stands there as it was typed closes the dialog.
void SettingsPage::TakeSeed(const ControlRow& row, std::int32_t seed) {
  FinishSpin();
  context_.edits.Set(tab_, row, seed);
  for (const ControlRow& field : RowsOf(tab_)) {
    if (field.kind == RowKind::kSeedField) UndoField(field.id, WholeText(seed));
  }
  Changed();
}

void SettingsPage::CommitLight(const ControlRow& row, int editId) {
  const std::string text = TextOf(editId);
  if (text == FieldText(row, editId)) return;
  const EffectSettings& settings = *context_.g.gParams;
  float alpha = settings.SurfaceLightAlpha;
  float beta = settings.SurfaceLightBeta;
  (editId == row.editId ? alpha : beta) = std::trunc(ParseValue(text));
  FinishSpin();
  context_.edits.SetLight(alpha, beta);
  ShowRow(row);
  Changed();
}

void SettingsPage::CommitOffset(const ControlRow& row, int editId) {
  const std::string text = TextOf(editId);
  if (text == FieldText(row, editId)) return;
  // The texture may be about to get another scale: how far it reaches hangs on that.
  FinishSpin();
  TextureOffset range{};
  const TextureOffset now = OffsetNow(range);
  OffsetPoint wanted{static_cast<float>(now.x), static_cast<float>(now.y)};
  const std::int32_t typed = ParseWhole(text);
  if (editId == row.editId) {
    wanted.x = static_cast<float>(LimitOffset(typed, range.x));
  } else {
    wanted.y = static_cast<float>(LimitOffset(typed, range.y));
  }
  MoveOffsetTo(wanted);
}

void SettingsPage::DragOffset(const ControlRow& row) {
  const auto* const ball = GetControlRecord<Rotor>(Item(row.id), kRotorClass);
  if (ball == nullptr) return;
  // Before what is put off shows the ball where the texture lies now.
  const BallOffset place = GetRotorOffset(*ball);
  FinishSpin();
  TextureOffset range{};
  (void)OffsetNow(range);
  MoveOffsetTo(OffsetOfBall(place, range));
}

void SettingsPage::MoveOffsetTo(OffsetPoint wanted) {
  TextureOffset range{};
  const TextureOffset way = WayTo(wanted, OffsetNow(range), context_.g.render.viewScale);
  context_.edits.MoveOffset(tab_, way.x, way.y);
  ShowOffset();
  Changed();
}

void SettingsPage::ClickLink() {
  FinishSpin();
  const LayerKind kind = KindOfTab(tab_);
  const TextureMatches matches = context_.edits.Update();
  std::uint8_t& flag = LinkFlagOf(kind, context_.g.session);
  if (!HasMatch(kind, matches) || flag != 0) {
    flag = 0;
    Enable();
  } else if (!OfferLink(matches)) {
    Enable();
    return;
  }
  Changed();
}

// True when the user has said yes.
bool SettingsPage::OfferLink(const TextureMatches& matches) {
  const LayerKind own = KindOfTab(tab_);
  const std::optional<LayerKind> source =
      AskForLink(context_.instance, context_.dialog, own, matches);
  if (!source) {
    LinkFlagOf(own, context_.g.session) = 0;
    return false;
  }
  FinishSpin();
  AcceptLink(context_.edits.Scope(), own, *source, matches);
  ShowValues();
  return true;
}

void SettingsPage::TextureChosen() {
  for (const ControlRow& row : RowsOf(tab_)) {
    if (row.kind == RowKind::kTexture) ShowRow(row);
  }
  const TextureMatches matches = context_.edits.Update();
  const bool isLinked = HasMatch(KindOfTab(tab_), matches) && OfferLink(matches);
  ShowOffset();
  Enable();
  // The texture itself has been rendered as it was tried.
  if (isLinked) Changed();
}

}  // namespace tarnwick
