#include <windows.h>

#include "base/native_path.h"

namespace tarnwick {

std::filesystem::path PathOfName(std::string_view name) {
  const int bytes = static_cast<int>(name.size());
  const int length = MultiByteToWideChar(CP_ACP, 0, name.data(), bytes, nullptr, 0);
  if (length <= 0) return {};
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_ACP, 0, name.data(), bytes, wide.data(), length);
  return wide;
}

std::string NameOfPath(const std::filesystem::path& path) {
  const std::wstring& wide = path.native();
  const int letters = static_cast<int>(wide.size());
  const int length =
      WideCharToMultiByte(CP_ACP, 0, wide.data(), letters, nullptr, 0, nullptr, nullptr);
  if (length <= 0) return {};
  std::string name(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_ACP, 0, wide.data(), letters, name.data(), length, nullptr, nullptr);
  return name;
}

}  // namespace tarnwick
