#pragma once
#include <windows.h>

#include <string>

#include "ui/window_agent/json_line.h"

namespace tarnwick::testui {

// Programs that the agent has started. Their handles stay open until it ends.

// What it prints goes into the file `log`, from its start. 0 when it cannot start.
[[nodiscard]] DWORD StartProgram(const std::string& log, const std::string& commandLine);

// {"alive":1} or {"alive":0,"code":N}
void TellProgram(DWORD process, JsonLine& answer);
void EndProgram(DWORD process);

// {"gdi":N,"user":N,"bytes":N}: objects it holds, and memory of its own.
void TellResources(DWORD process, JsonLine& answer);

}  // namespace tarnwick::testui
