// tarnwick-page-note: what a session opens pages with in place of a browser. Adds
// the page's address to a file, a line each, and shows nothing: a window would take
// the keys away from the program that asked for the page.
//
//   tarnwick-page-note FILE ADDRESS
#include <windows.h>

#include <string>

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  // Bytes that are added in one go: of two at once none is lost or mixed up.
  const HANDLE file = CreateFileA(argv[1], FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                  nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 1;
  const std::string line = std::string(argv[2]) + '\n';
  DWORD written = 0;
  const BOOL isWritten =
      WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
  return isWritten != FALSE && written == line.size() ? 0 : 1;
}
