#include "resources/art_generator/art_table.h"

#include "resources/art_ids.h"

namespace tarnwick {
namespace {

constexpr ArtBitmap kBitmaps[] = {
    {TARNWICK_ART_BAND_LEFT, "band_left", "normal", 453, 71},
    {TARNWICK_ART_BAND_TILE, "band_tile", "normal", 4, 71},
    {TARNWICK_ART_BAND_RIGHT, "band_right", "normal", 334, 71},

    {TARNWICK_ART_ABOUT, "about", "normal", 400, 35, 23, 18},
    {TARNWICK_ART_ABOUT_HOVER, "about", "hover", 400, 35, 23, 18},
    {TARNWICK_ART_ABOUT_NEWS, "about", "news", 400, 35, 23, 18},
    {TARNWICK_ART_ABOUT_NEWS_HOVER, "about", "news hover", 400, 35, 23, 18},
    {TARNWICK_ART_AUTO, "auto", "normal", 118, 50, 0, 9},
    {TARNWICK_ART_AUTO_HOVER, "auto", "hover", 118, 50, 0, 9},
    {TARNWICK_ART_MANUAL, "manual", "normal", 127, 40, 6, 19},
    {TARNWICK_ART_MANUAL_HOVER, "manual", "hover", 127, 40, 6, 19},
    {TARNWICK_ART_PRESETS, "presets", "normal", 140, 40, 132, 19},
    {TARNWICK_ART_PRESETS_HOVER, "presets", "hover", 140, 40, 132, 19},
    {TARNWICK_ART_PRESETS_NEWS, "presets", "news", 140, 40, 132, 19},
    {TARNWICK_ART_PRESETS_NEWS_HOVER, "presets", "news hover", 140, 40, 132, 19},

    {TARNWICK_ART_ZOOM_IN, "zoom_in", "normal", 30, 26},
    {TARNWICK_ART_ZOOM_IN_HOVER, "zoom_in", "hover", 30, 26},
    {TARNWICK_ART_ZOOM_IN_DISABLED, "zoom_in", "disabled", 30, 26},
    {TARNWICK_ART_ZOOM_OUT, "zoom_out", "normal", 30, 26},
    {TARNWICK_ART_ZOOM_OUT_HOVER, "zoom_out", "hover", 30, 26},
    {TARNWICK_ART_ZOOM_OUT_DISABLED, "zoom_out", "disabled", 30, 26},

    {TARNWICK_ART_ROTATE_LEFT, "rotate_left", "normal", 24, 24},
    {TARNWICK_ART_ROTATE_LEFT_HOVER, "rotate_left", "hover", 24, 24},
    {TARNWICK_ART_ROTATE_LEFT_DISABLED, "rotate_left", "disabled", 24, 24},
    {TARNWICK_ART_ROTATE_RIGHT, "rotate_right", "normal", 24, 24},
    {TARNWICK_ART_ROTATE_RIGHT_HOVER, "rotate_right", "hover", 24, 24},
    {TARNWICK_ART_ROTATE_RIGHT_DISABLED, "rotate_right", "disabled", 24, 24},
    {TARNWICK_ART_LINK, "link", "normal", 24, 24},
    {TARNWICK_ART_LINK_HOVER, "link", "hover", 24, 24},
    {TARNWICK_ART_LINK_DISABLED, "link", "disabled", 24, 24},
    {TARNWICK_ART_LINKED, "link", "checked", 24, 24},
    {TARNWICK_ART_LINKED_HOVER, "link", "checked hover", 24, 24},
    {TARNWICK_ART_LINKED_DISABLED, "link", "checked disabled", 24, 24},

    {TARNWICK_ART_FILM_BACK, "film_back", "normal", 20, 63},
    {TARNWICK_ART_FILM_BACK_HOVER, "film_back", "hover", 20, 63},
    {TARNWICK_ART_FILM_BACK_DISABLED, "film_back", "disabled", 20, 63},
    {TARNWICK_ART_FILM_FORWARD, "film_forward", "normal", 20, 63},
    {TARNWICK_ART_FILM_FORWARD_HOVER, "film_forward", "hover", 20, 63},
    {TARNWICK_ART_FILM_FORWARD_DISABLED, "film_forward", "disabled", 20, 63},

    {TARNWICK_ART_FOLDER, "folder", "normal", 16, 14},
    {TARNWICK_ART_FOLDER_UP, "folder", "up", 16, 14},
    {TARNWICK_ART_CROSS, "cross", "normal", 13, 13},
    {TARNWICK_ART_CROSS_HOVER, "cross", "hover", 13, 13},
    {TARNWICK_ART_CORNER_SHADE, "corner_shade", "normal", 20, 33},

    {TARNWICK_ART_DRAWER_TEXTURES, "drawer_title", "textures", 199, 20},
    {TARNWICK_ART_DRAWER_COLORS, "drawer_title", "colors", 199, 20},
    {TARNWICK_ART_DRAWER_EFFECTS, "drawer_title", "effects", 199, 20},
    {TARNWICK_ART_DRAWER_SELECT, "drawer_select", "normal", 116, 38},
    {TARNWICK_ART_DRAWER_SELECT_HOVER, "drawer_select", "hover", 116, 38},
    {TARNWICK_ART_DRAWER_CANCEL, "drawer_cancel", "normal", 116, 38},
    {TARNWICK_ART_DRAWER_CANCEL_HOVER, "drawer_cancel", "hover", 116, 38},
    {TARNWICK_ART_DRAWER_LIVE, "drawer_live", "normal", 40, 38},
    {TARNWICK_ART_DRAWER_LIVE_HOVER, "drawer_live", "hover", 40, 38},
    {TARNWICK_ART_DRAWER_LIVE_ON, "drawer_live", "checked", 40, 38},
    {TARNWICK_ART_DRAWER_LEFT, "drawer_left", "normal", 12, 25},
    {TARNWICK_ART_DRAWER_LEFT_HOVER, "drawer_left", "hover", 12, 25},
    {TARNWICK_ART_DRAWER_RIGHT, "drawer_right", "normal", 12, 25},
    {TARNWICK_ART_DRAWER_RIGHT_HOVER, "drawer_right", "hover", 12, 25},

    {TARNWICK_ART_PICKER_SELECT, "picker_select", "normal", 44, 19},
    {TARNWICK_ART_PICKER_SELECT_HOVER, "picker_select", "hover", 44, 19},
    {TARNWICK_ART_PICKER_LEFT, "picker_left", "normal", 28, 125},
    {TARNWICK_ART_PICKER_LEFT_HOVER, "picker_left", "hover", 28, 125},
    {TARNWICK_ART_PICKER_RIGHT, "picker_right", "normal", 28, 125},
    {TARNWICK_ART_PICKER_RIGHT_HOVER, "picker_right", "hover", 28, 125},
    {TARNWICK_ART_PICKER_FIRST, "picker_first", "normal", 20, 15},
    {TARNWICK_ART_PICKER_FIRST_HOVER, "picker_first", "hover", 20, 15},
    {TARNWICK_ART_PICKER_FIRST_DISABLED, "picker_first", "disabled", 20, 15},
    {TARNWICK_ART_PICKER_LAST, "picker_last", "normal", 20, 15},
    {TARNWICK_ART_PICKER_LAST_HOVER, "picker_last", "hover", 20, 15},
    {TARNWICK_ART_PICKER_LAST_DISABLED, "picker_last", "disabled", 20, 15},
    {TARNWICK_ART_DETAIL_CLOSE, "detail_close", "normal", 14, 14},
    {TARNWICK_ART_DETAIL_CLOSE_HOVER, "detail_close", "hover", 14, 14},
};

constexpr ArtIcon kIcons[] = {
    {TARNWICK_ART_MODULE_ICON, "module_icon", 20, false, 0, 0},
    {TARNWICK_ART_NOTICE_ICON, "notice_icon", 0, false, 0, 0},
    {TARNWICK_ART_CLOSED_HAND, "closed_hand", 0, true, 0.5, 0.5},
    {TARNWICK_ART_OPEN_HAND, "open_hand", 0, true, 0.5, 0.5},
};

constexpr int kIconSides[] = {16, 20, 24, 32, 40, 48, 64, 256};
constexpr int kCursorSides[] = {32, 48, 64};

}  // namespace

std::span<const ArtBitmap> ArtBitmaps() {
  return kBitmaps;
}
std::span<const ArtIcon> ArtIcons() {
  return kIcons;
}
std::span<const int> IconSides() {
  return kIconSides;
}
std::span<const int> CursorSides() {
  return kCursorSides;
}

}  // namespace tarnwick
