// Numbers of the pictures in the module; read by the resource compiler too. Bitmaps,
// cursors and icons are numbered apart, so two of them may share a number. What they
// look like, and on what they lie, is shown in docs/art.md.
#pragma once

// The header band: left end 453 x 71, tile 4 x 71, right end 334 x 71.
#define TARNWICK_ART_BAND_LEFT 213
#define TARNWICK_ART_BAND_TILE 214
#define TARNWICK_ART_BAND_RIGHT 215

// The buttons on it, each with the piece of the band it lies on.
#define TARNWICK_ART_ABOUT 228  // 400 x 35
#define TARNWICK_ART_ABOUT_HOVER 227
#define TARNWICK_ART_ABOUT_NEWS 232
#define TARNWICK_ART_ABOUT_NEWS_HOVER 231
#define TARNWICK_ART_AUTO 225  // 118 x 50
#define TARNWICK_ART_AUTO_HOVER 224
#define TARNWICK_ART_MANUAL 189  // 127 x 40
#define TARNWICK_ART_MANUAL_HOVER 188
#define TARNWICK_ART_PRESETS 186  // 140 x 40
#define TARNWICK_ART_PRESETS_HOVER 192
#define TARNWICK_ART_PRESETS_NEWS 234
#define TARNWICK_ART_PRESETS_NEWS_HOVER 233

// On the dialog's face: zoom buttons 30 x 26.
#define TARNWICK_ART_ZOOM_IN 104
#define TARNWICK_ART_ZOOM_IN_HOVER 145
#define TARNWICK_ART_ZOOM_IN_DISABLED 143
#define TARNWICK_ART_ZOOM_OUT 107
#define TARNWICK_ART_ZOOM_OUT_HOVER 146
#define TARNWICK_ART_ZOOM_OUT_DISABLED 144

// On the dialog's face: buttons of the pages, 24 x 24.
#define TARNWICK_ART_ROTATE_LEFT 184
#define TARNWICK_ART_ROTATE_LEFT_HOVER 185
#define TARNWICK_ART_ROTATE_LEFT_DISABLED 174
#define TARNWICK_ART_ROTATE_RIGHT 181
#define TARNWICK_ART_ROTATE_RIGHT_HOVER 182
#define TARNWICK_ART_ROTATE_RIGHT_DISABLED 183
#define TARNWICK_ART_LINK 178
#define TARNWICK_ART_LINK_HOVER 179
#define TARNWICK_ART_LINK_DISABLED 180
#define TARNWICK_ART_LINKED 177
#define TARNWICK_ART_LINKED_HOVER 175
#define TARNWICK_ART_LINKED_DISABLED 176

// On the dialog's face: arrows of the filmstrip, 20 x 63.
#define TARNWICK_ART_FILM_BACK 223
#define TARNWICK_ART_FILM_BACK_HOVER 222
#define TARNWICK_ART_FILM_BACK_DISABLED 221
#define TARNWICK_ART_FILM_FORWARD 220
#define TARNWICK_ART_FILM_FORWARD_HOVER 219
#define TARNWICK_ART_FILM_FORWARD_DISABLED 218

// In a preset list, on white: 16 x 14.
#define TARNWICK_ART_FOLDER 148
#define TARNWICK_ART_FOLDER_UP 150

// On the pane's black strip: crosses of the view strip, 13 x 13.
#define TARNWICK_ART_CROSS 154
#define TARNWICK_ART_CROSS_HOVER 153

// The lower left corner of the pane's strips and of the drawer, 20 x 33: how much of
// the dialog's face shows, 255 for all of it.
#define TARNWICK_ART_CORNER_SHADE 155

// On the drawer's black: titles 199 x 20, buttons 116 x 38, toggle 40 x 38, page
// arrows 12 x 25.
#define TARNWICK_ART_DRAWER_TEXTURES 208
#define TARNWICK_ART_DRAWER_COLORS 235
#define TARNWICK_ART_DRAWER_EFFECTS 193
#define TARNWICK_ART_DRAWER_SELECT 207
#define TARNWICK_ART_DRAWER_SELECT_HOVER 206
#define TARNWICK_ART_DRAWER_CANCEL 202
#define TARNWICK_ART_DRAWER_CANCEL_HOVER 201
#define TARNWICK_ART_DRAWER_LIVE 205
#define TARNWICK_ART_DRAWER_LIVE_HOVER 204
#define TARNWICK_ART_DRAWER_LIVE_ON 203
#define TARNWICK_ART_DRAWER_LEFT 212
#define TARNWICK_ART_DRAWER_LEFT_HOVER 211
#define TARNWICK_ART_DRAWER_RIGHT 210
#define TARNWICK_ART_DRAWER_RIGHT_HOVER 209

// The full-size picker: Select on a cell 44 x 19, page arrows on black 28 x 125, ends
// of the page strip on grey 128, 20 x 15, close on the same grey, 14 x 14.
#define TARNWICK_ART_PICKER_SELECT 168
#define TARNWICK_ART_PICKER_SELECT_HOVER 169
#define TARNWICK_ART_PICKER_LEFT 158
#define TARNWICK_ART_PICKER_LEFT_HOVER 157
#define TARNWICK_ART_PICKER_RIGHT 156
#define TARNWICK_ART_PICKER_RIGHT_HOVER 159
#define TARNWICK_ART_PICKER_FIRST 163
#define TARNWICK_ART_PICKER_FIRST_HOVER 162
#define TARNWICK_ART_PICKER_FIRST_DISABLED 161
#define TARNWICK_ART_PICKER_LAST 160
#define TARNWICK_ART_PICKER_LAST_HOVER 165
#define TARNWICK_ART_PICKER_LAST_DISABLED 164
#define TARNWICK_ART_DETAIL_CLOSE 172
#define TARNWICK_ART_DETAIL_CLOSE_HOVER 173

// Cursors: the hand that drags, and the hand that could.
#define TARNWICK_ART_CLOSED_HAND 144
#define TARNWICK_ART_OPEN_HAND 145

// Icons: the module's own, which is the lowest as Explorer shows that one, and a mark
// for notices.
#define TARNWICK_ART_MODULE_ICON 100
#define TARNWICK_ART_NOTICE_ICON 230
