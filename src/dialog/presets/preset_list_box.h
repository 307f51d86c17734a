#pragma once
#include <windows.h>

#include <span>
#include <string>

#include "dialog/models/preset_lists.h"

namespace tarnwick {

// List boxes of presets: owner-drawn with rows of one height and strings of their own
// (LBS_OWNERDRAWFIXED | LBS_HASSTRINGS), all but the Basic one sorted (LBS_SORT).

// The rows anew, in the order given unless the box sorts them. Also gives the box its
// font and its rows their height, which the font decides.
void FillPresetList(HWND list, std::span<const std::string> rows);
// Takes the rows out from the last to the first.
void ClearPresetList(HWND list);

// The selected row, -1 for none, and its text, empty for none.
[[nodiscard]] int SelectedRow(HWND list);
[[nodiscard]] std::string SelectedText(HWND list);

// A page's Delete button: to be used only on a preset. Does nothing for a list that
// has none. The keys do not stay with a button that is switched off.
void UpdateDeleteButton(HWND page, const PresetList& list);

// The bitmaps in front of folders; not owned, null draws none.
struct PresetListIcons {
  HBITMAP folder = nullptr;
  HBITMAP up = nullptr;
};

// A row at WM_DRAWITEM.
void DrawPresetRow(const DRAWITEMSTRUCT& item, const PresetListIcons& icons);

}  // namespace tarnwick
