#include "dialog/presets/preset_library.h"

#include <utility>

#include "base/native_path.h"
#include "controls/control_shared.h"
#include "dialog/models/preset_choice.h"
#include "dialog/models/strip_commands.h"
#include "dialog/models/texture_matches.h"
#include "dialog/presets/folder_listing.h"
#include "dialog/presets/preset_list_box.h"
#include "dialog/presets/preset_name_box.h"
#include "environment/platform_calls.h"
#include "presets/preset_file.h"
#include "resources/art_ids.h"

namespace tarnwick {

PresetLibrary::PresetLibrary(FilterGlobals& g, EffectViews& views, const EffectSettings& lastUsed,
                             PresetLibraryHooks hooks)
    : g_(g),
      views_(views),
      lastUsed_(lastUsed),
      hooks_(std::move(hooks)),
      folders_(g.folders.presetFolder) {}

void PresetLibrary::Fill(HWND page, PresetKind kind) {
  const PresetList* const list = PresetListOf(kind);
  if (list == nullptr) return;
  const std::string& subFolder = folders_.SubFolder(kind);
  SetDlgItemTextA(page, list->pathLabelId, subFolder.c_str());
  std::vector<FolderEntry> entries;
  if (IsThere()) entries = ListFolder(folders_.Folder(kind));
  FillPresetList(GetDlgItem(page, list->listId), PresetRows(kind, !subFolder.empty(), entries));
  UpdateDeleteButton(page, *list);
}

bool PresetLibrary::Draw(const DRAWITEMSTRUCT& item) {
  if (item.CtlType != ODT_LISTBOX || PresetListOfId(static_cast<int>(item.CtlID)) == nullptr) {
    return false;
  }
  const HINSTANCE instance = SharedControls().instance;
  DrawPresetRow(item, {bitmaps_.Load(instance, TARNWICK_ART_FOLDER),
                       bitmaps_.Load(instance, TARNWICK_ART_FOLDER_UP)});
  return true;
}

bool PresetLibrary::Command(HWND page, WPARAM wParam) {
  const PresetCommand command = PresetCommandOf(LOWORD(wParam), HIWORD(wParam));
  switch (command.event) {
    case PresetEvent::kNone:
      return false;
    case PresetEvent::kSelect:
      Select(page, *command.list);
      break;
    case PresetEvent::kOpen:
      Open(page, *command.list);
      break;
    case PresetEvent::kSave:
      Save(command.list->kind, page);
      break;
    case PresetEvent::kDelete:
      Delete(page, *command.list);
      break;
  }
  return true;
}

void PresetLibrary::UpdateDelete(HWND page, PresetKind kind) {
  const PresetList* const list = PresetListOf(kind);
  if (list != nullptr) UpdateDeleteButton(page, *list);
}

void PresetLibrary::Select(HWND page, const PresetList& list) {
  UpdateDeleteButton(page, list);
  const int row = SelectedRow(GetDlgItem(page, list.listId));
  if (row < 0) return;
  EffectSettings& settings = *g_.gParams;
  KeptLayers kept;
  if (list.kind == PresetKind::kBasic && row == kResetAllRow) {
    kept = ResetPage(settings, g_.session, kBasicTab);
    hooks_.syncStrip();
  } else if (list.kind == PresetKind::kBasic && row == kLastUsedRow) {
    settings = lastUsed_;
    settings.SnapshotHeld = 0;
    kept = LayersThatStay(list.kind, settings);
    hooks_.syncStrip();
  } else {
    if (!Choose(page, list)) return;
    kept = LayersThatStay(list.kind, settings);
  }
  // The wash in a mask wants the background below it.
  if (settings.MaskLayerEffect != 0) settings.NewLayerBackground = 1;
  hooks_.showOptions();
  hooks_.remakeLayers(kept);
  hooks_.settingsChanged();
  hooks_.showPage();
}

// A row that is no built-in one. False when it brought nothing.
bool PresetLibrary::Choose(HWND page, const PresetList& list) {
  EffectSettings& settings = *g_.gParams;
  settings.SnapshotHeld = 0;
  const std::string text = SelectedText(GetDlgItem(page, list.listId));
  if (IsFolderRow(text) || !LoadPreset(text, list.kind)) return false;
  settings.SnapshotHeld = 1;
  UpdateUseFlags(views_, settings);
  return true;
}

void PresetLibrary::Open(HWND page, const PresetList& list) {
  const std::string text = SelectedText(GetDlgItem(page, list.listId));
  if (folders_.Enter(list.kind, text)) Fill(page, list.kind);
}

void PresetLibrary::Delete(HWND page, const PresetList& list) {
  const HWND box = GetDlgItem(page, list.listId);
  const int row = SelectedRow(box);
  const std::string name = SelectedText(box);
  if (row < 0 || IsFolderRow(name) || !IsThere()) return;
  // The row goes even if the file stays.
  DeleteFileA(folders_.File(list.kind, name).c_str());
  SendMessageA(box, LB_DELETESTRING, static_cast<WPARAM>(row), 0);
  UpdateDeleteButton(page, list);
  if (listener_) listener_();
}

void PresetLibrary::Save(PresetKind kind, HWND page) {
  std::string name;
  const NameAnswer answer =
      AskPresetName(SharedControls().instance, Owner(), name,
                    [&](std::string_view typed) { return folders_.TopFile(kind, typed); });
  if (answer == NameAnswer::kCancelled) return;
  if (!IsThere() || SavePresetFile(PathOfName(folders_.File(kind, name)), kind, *g_.gParams,
                                   g_.session) != PresetSave::kSaved) {
    ShowAlertBox("Cannot Save File!", Owner());
    return;
  }
  const PresetList* const list = PresetListOf(kind);
  if (answer == NameAnswer::kNew && list != nullptr && page != nullptr) {
    SendDlgItemMessageA(page, list->listId, LB_ADDSTRING, 0,
                        reinterpret_cast<LPARAM>(name.c_str()));
  }
  if (listener_) listener_();
}

bool PresetLibrary::LoadPreset(std::string_view name, PresetKind kind) {
  if (!Read(name, kind)) return false;
  hooks_.syncStrip();
  return true;
}

bool PresetLibrary::LoadBackPalette(std::string_view name) {
  return Read(name, PresetKind::kBackPalette);
}

void PresetLibrary::ShowNewBackground() {
  hooks_.remakeLayers({.washes = true, .surfaces = true, .background = false});
  hooks_.settingsChanged();
}

bool PresetLibrary::Read(std::string_view name, PresetKind kind) {
  if (name.empty() || !IsThere()) return false;
  ForgetColorNames(kind, g_.session);
  const std::string file = folders_.File(kind, PresetNameOf(name));
  return LoadPresetFile(PathOfName(file), *g_.gParams, PresetsOf(g_)) == PresetLoad::kLoaded;
}

}  // namespace tarnwick
