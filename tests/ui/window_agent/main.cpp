// tarnwick-window-agent: the driver's eyes inside Windows. Reads one command a line
// from its input, answers each with one line of JSON, and ends with its input.
//
//   tarnwick-window-agent DPI PAGES
//
// PAGES is the file in which the session notes what pages have been opened.
//
//   start LOG COMMAND LINE    the new process, or 0; LOG has no spaces
//   program P | end P | resources P
//   tops | children W | window W | tips W | tabs W | rows W | focus |
//   pointer
//   send W MESSAGE WPARAM LPARAM    the window's answer
//
// The pointer and the keys are the driver's: the agent only looks.
#include <windows.h>

#include <cstdio>
#include <iostream>
#include <sstream>

#include "ui/window_agent/programs.h"
#include "ui/window_agent/windows_seen.h"

namespace {

using namespace tarnwick::testui;  // NOLINT(google-build-using-namespace): its own program

void SetUserValue(const char* key, const char* name, DWORD type, const void* data, DWORD size) {
  RegSetKeyValueA(HKEY_CURRENT_USER, key, name, type, data, size);
}

// Before the first window of the session is made. Frames and captions are Windows'
// own, since no window manager draws them.
void SettleDesktop(DWORD dpi) {
  SetUserValue("Control Panel\\Desktop", "LogPixels", REG_DWORD, &dpi, sizeof dpi);
  constexpr char kDriver[] = "Software\\Wine\\X11 Driver";
  SetUserValue(kDriver, "Managed", REG_SZ, "N", 2);
  SetUserValue(kDriver, "Decorated", REG_SZ, "N", 2);
}

// Pages are opened by tarnwick-page-note, which lies beside this program. The registry
// is the session's own and goes with it.
void NotePages(const char* pages) {
  char self[MAX_PATH] = {}, note[MAX_PATH] = {};
  GetModuleFileNameA(nullptr, self, sizeof self);
  GetFullPathNameA(pages, sizeof note, note, nullptr);
  std::string folder = self;
  folder.erase(folder.rfind('\\') + 1);
  const std::string command = '"' + folder + "tarnwick-page-note.exe\" \"" + note + "\" \"%1\"";
  constexpr char kClass[] = "TarnwickPageNote";
  RegSetKeyValueA(HKEY_CLASSES_ROOT, ".html", nullptr, REG_SZ, kClass, sizeof kClass);
  RegSetKeyValueA(HKEY_CLASSES_ROOT, (std::string(kClass) + "\\shell\\open\\command").c_str(),
                  nullptr, REG_SZ, command.c_str(), static_cast<DWORD>(command.size() + 1));
}

std::string AnswerTo(const std::string& line) {
  std::istringstream words(line);
  std::string command;
  words >> command;
  JsonLine answer;
  if (command == "start") {
    std::string log, rest;
    words >> log;
    std::getline(words >> std::ws, rest);
    return answer.Number(StartProgram(log, rest)).Line();
  }
  long long number = 0;
  words >> number;
  const auto process = static_cast<DWORD>(number);
  const auto window = reinterpret_cast<HWND>(static_cast<LONG_PTR>(number));
  if (command == "program") {
    TellProgram(process, answer);
  } else if (command == "end") {
    EndProgram(process);
    answer.Number(0);
  } else if (command == "resources") {
    TellResources(process, answer);
  } else if (command == "tops") {
    TellTopWindows(answer);
  } else if (command == "children") {
    TellChildren(window, answer);
  } else if (command == "window") {
    TellWindow(window, answer);
  } else if (command == "tips") {
    TellTips(window, answer);
  } else if (command == "tabs") {
    TellTabs(window, answer);
  } else if (command == "rows") {
    TellRows(window, answer);
  } else if (command == "focus") {
    TellFocus(answer);
  } else if (command == "pointer") {
    answer.Number(PointerShape());
  } else if (command == "send") {
    UINT message = 0;
    long long wParam = 0, lParam = 0;
    LRESULT result = 0;
    words >> message >> wParam >> lParam;
    if (!Ask(window, message, static_cast<WPARAM>(wParam), static_cast<LPARAM>(lParam), result)) {
      return answer.Text("no answer").Line();
    }
    answer.Number(result);
  } else {
    answer.Text("unknown command");
  }
  return answer.Line();
}

}  // namespace

int main(int argc, char** argv) {
  SettleDesktop(argc > 1 ? static_cast<DWORD>(std::stoul(argv[1])) : 96);
  if (argc > 2) NotePages(argv[2]);
  SetProcessDPIAware();
  GetDesktopWindow();
  std::string line;
  while (std::getline(std::cin, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    std::printf("%s\n", AnswerTo(line).c_str());
    std::fflush(stdout);
  }
  return 0;
}
