// Numbers of dialogs and of what is in them; read by the resource compiler too.
#pragma once

// The main dialog is found by name.
#define TARNWICK_MAIN_DIALOG "DISSOLVEDIALOG"

#define TARNWICK_ABOUT_BOX 152
#define TARNWICK_ABOUT_NAME 1500
#define TARNWICK_ABOUT_VERSION 1501
#define TARNWICK_ABOUT_PURPOSE 1502
#define TARNWICK_ABOUT_LICENCE 1503
#define TARNWICK_ABOUT_ICON 1504
#define TARNWICK_ABOUT_MANUAL 1505
#define TARNWICK_ABOUT_EXAMPLES 1506
#define TARNWICK_ABOUT_TERMS 1507
#define TARNWICK_ABOUT_SOUND 1508
