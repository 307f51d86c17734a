#include "ui/window_agent/programs.h"

#include <psapi.h>

#include <map>

namespace tarnwick::testui {
namespace {

std::map<DWORD, HANDLE>& Started() {
  static std::map<DWORD, HANDLE> programs;
  return programs;
}

HANDLE HandleOf(DWORD process) {
  const auto found = Started().find(process);
  return found == Started().end() ? nullptr : found->second;
}

}  // namespace

DWORD StartProgram(const std::string& log, const std::string& commandLine) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  const HANDLE out = CreateFileA(log.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                 &inherited, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (out == INVALID_HANDLE_VALUE) return 0;
  STARTUPINFOA start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = out;
  start.hStdError = out;
  PROCESS_INFORMATION made{};
  std::string line = commandLine;
  const BOOL isStarted = CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                        nullptr, &start, &made);
  CloseHandle(out);
  if (isStarted == FALSE) return 0;
  CloseHandle(made.hThread);
  Started()[made.dwProcessId] = made.hProcess;
  return made.dwProcessId;
}

void TellProgram(DWORD process, JsonLine& answer) {
  DWORD code = STILL_ACTIVE;
  GetExitCodeProcess(HandleOf(process), &code);
  answer.Begin('{').Key("alive").Number(code == STILL_ACTIVE ? 1 : 0);
  answer.Key("code").Number(static_cast<int>(code)).End('}');
}

void EndProgram(DWORD process) {
  TerminateProcess(HandleOf(process), 9);
  WaitForSingleObject(HandleOf(process), 10000);
}

void TellResources(DWORD process, JsonLine& answer) {
  const HANDLE handle = HandleOf(process);
  PROCESS_MEMORY_COUNTERS memory{};
  memory.cb = sizeof memory;
  GetProcessMemoryInfo(handle, &memory, sizeof memory);
  answer.Begin('{').Key("gdi").Number(GetGuiResources(handle, GR_GDIOBJECTS));
  answer.Key("user").Number(GetGuiResources(handle, GR_USEROBJECTS));
  answer.Key("bytes").Number(static_cast<long long>(memory.PagefileUsage)).End('}');
}

}  // namespace tarnwick::testui
