// Numbers of the dialogs about presets; read by the resource compiler too.
#pragma once

#define TARNWICK_SAVE_PRESET_BOX 147
#define TARNWICK_PRESET_NAME 1358
