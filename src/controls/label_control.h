#pragma once
#include "controls/control_record.h"

namespace tarnwick {

// "Contaner CPP": a caption that can be clicked. As a plain link (style 0) it is
// underlined blue text on the dialog's face; as a tracking label (style 6) it
// follows the pointer in its four colours, and a state of 2 marks the current
// choice. Posts WM_COMMAND when it is released while it is enabled; commands of
// controls in it are posted on.
LRESULT CALLBACK LabelProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Null when it cannot be made; `text` may be null. The caller sets style and colours.
[[nodiscard]] TContaner* CreateLabelControl(int x, int y, int width, int height, HWND parent,
                                            int id, const char* text, bool enabled,
                                            bool leftAligned);

}  // namespace tarnwick
