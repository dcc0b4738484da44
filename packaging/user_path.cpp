// SPDX-License-Identifier: GPL-3.0-or-later
// user-path add|remove FOLDER: puts a folder at the end of the user's PATH, or takes it off. A step
// of the installer: a PATH may be longer than the strings that installers are written with. Where
// it fails, with exit code 1, nothing has changed.
#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>
//
#include <shellapi.h>

namespace {

constexpr const wchar_t* kName = L"Path";
constexpr std::size_t kMostLetters = 32767;  ///< that Windows takes for a variable

/// The key of the user's variables, closed with its block.
class Variables {
 public:
  Variables() {
    if (::RegOpenKeyExW(HKEY_CURRENT_USER, L"Environment", 0, KEY_QUERY_VALUE | KEY_SET_VALUE,
                        &key_) != ERROR_SUCCESS) {
      key_ = nullptr;
    }
  }
  Variables(const Variables&) = delete;
  Variables& operator=(const Variables&) = delete;
  Variables(Variables&&) = delete;
  Variables& operator=(Variables&&) = delete;
  ~Variables() { ::RegCloseKey(key_); }

  HKEY Key() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

/// The list of folders, and whether names of variables in it are meant as their values.
struct UserPath {
  std::wstring folders;
  DWORD type = REG_EXPAND_SZ;
};

std::optional<UserPath> Read(HKEY key) {
  UserPath path;
  DWORD bytes = 0;
  LSTATUS state = ::RegQueryValueExW(key, kName, nullptr, &path.type, nullptr, &bytes);
  if (state == ERROR_FILE_NOT_FOUND) {
    return UserPath{};
  }
  path.folders.resize(bytes / sizeof(wchar_t) + 1);
  bytes = static_cast<DWORD>(path.folders.size() * sizeof(wchar_t));
  if (state == ERROR_SUCCESS) {
    state = ::RegQueryValueExW(key, kName, nullptr, &path.type,
                               reinterpret_cast<BYTE*>(path.folders.data()), &bytes);
  }
  if (state != ERROR_SUCCESS || (path.type != REG_SZ && path.type != REG_EXPAND_SZ)) {
    return std::nullopt;
  }
  path.folders.resize(bytes / sizeof(wchar_t));
  path.folders.resize(std::min(path.folders.find(L'\0'), path.folders.size()));
  return path;
}

bool Write(HKEY key, const UserPath& path) {
  if (path.folders.empty()) {
    return ::RegDeleteValueW(key, kName) != ERROR_ACCESS_DENIED;
  }
  const auto bytes = static_cast<DWORD>((path.folders.size() + 1) * sizeof(wchar_t));
  return path.folders.size() < kMostLetters &&
         ::RegSetValueExW(key, kName, 0, path.type,
                          reinterpret_cast<const BYTE*>(path.folders.c_str()),
                          bytes) == ERROR_SUCCESS;
}

bool IsSame(std::wstring_view one, std::wstring_view other) {
  return ::CompareStringOrdinal(one.data(), static_cast<int>(one.size()), other.data(),
                                static_cast<int>(other.size()), TRUE) == CSTR_EQUAL;
}

/// All folders but one, as they were.
std::wstring Without(std::wstring_view folders, std::wstring_view folder) {
  std::wstring others;
  bool is_first = true;
  for (std::size_t at = 0; at <= folders.size();) {
    const std::size_t end = std::min(folders.find(L';', at), folders.size());
    const std::wstring_view entry = folders.substr(at, end - at);
    if (!IsSame(entry, folder)) {
      others.append(is_first ? L"" : L";").append(entry);
      is_first = false;
    }
    at = end + 1;
  }
  return others;
}

bool Change(bool is_to_add, const std::wstring& folder) {
  const Variables variables;
  std::optional<UserPath> path = Read(variables.Key());
  if (!path || folder.empty() || folder.find(L';') != std::wstring::npos) {
    return false;
  }
  const std::wstring before = path->folders;
  const std::wstring others = Without(before, folder);
  const bool is_there = others != before;
  if (is_there == is_to_add) {
    return true;
  }
  if (is_to_add) {
    path->folders.append(before.empty() ? L"" : L";").append(folder);
  } else {
    path->folders = others;
  }
  if (!Write(variables.Key(), *path)) {
    return false;
  }
  // Programs that start others, as the desktop does, hear of it.
  constexpr UINT kPatience = 2000;  // milliseconds
  (void)::SendMessageTimeoutW(HWND_BROADCAST, WM_SETTINGCHANGE, 0,
                              reinterpret_cast<LPARAM>(L"Environment"), SMTO_ABORTIFHUNG, kPatience,
                              nullptr);
  return true;
}

}  // namespace

int WINAPI WinMain(HINSTANCE /*program*/, HINSTANCE /*earlier*/, LPSTR /*line*/, int /*show*/) {
  int count = 0;
  wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  const std::vector<std::wstring> arguments(words, words + count);
  ::LocalFree(words);
  const bool is_to_add = count == 3 && arguments[1] == L"add";
  const bool is_to_remove = count == 3 && arguments[1] == L"remove";
  return (is_to_add || is_to_remove) && Change(is_to_add, arguments[2]) ? 0 : 1;
}
