// Numbers of the pages' templates, and of what in them has no number of its own in the
// program; read by the resource compiler too.
#pragma once

#define TARNWICK_PAGE_BASIC 143
#define TARNWICK_PAGE_WASH 144
#define TARNWICK_PAGE_BACKGROUND 145
#define TARNWICK_PAGE_SURFACE 146
#define TARNWICK_LINK_OFFER 151

// Labels and groups are numbered from 2101 on each page; see page_rows.cpp.
#define TARNWICK_PRESETS_GROUP 2130

#define TARNWICK_LINK_AS_WASH 2201
#define TARNWICK_LINK_AS_SURFACE 2202
#define TARNWICK_LINK_AS_BACKGROUND 2203
