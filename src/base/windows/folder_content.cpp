// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/folder_content.h"

#include <filesystem>

#include "base/path_text.h"
#include "base/windows/system_error.h"

namespace kaldo {

// What the library has for this reads no path of more than 260 characters.

std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  WIN32_FIND_DATAW found{};
  const HANDLE search = ::FindFirstFileW(FilePath(folder + "/*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) {
    return names;
  }
  do {
    const std::string name = PathText(std::filesystem::path(found.cFileName));
    if (name != "." && name != "..") {
      names.push_back(name);
    }
  } while (::FindNextFileW(search, &found) != 0);
  ::FindClose(search);
  return names;
}

std::error_code RemoveFolder(const std::string& folder) {
  const std::filesystem::path path = FilePath(folder);
  const DWORD attributes = ::GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    const DWORD error = ::GetLastError();
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND ? std::error_code()
                                                                          : SystemError(error);
  }
  const bool is_folder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  if (is_folder && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
    const std::string inside = folder + '/';
    for (const std::string& name : NamesIn(folder)) {
      if (const std::error_code error = RemoveFolder(inside + name)) {
        return error;
      }
    }
  }
  const BOOL is_removed =
      is_folder ? ::RemoveDirectoryW(path.c_str()) : ::DeleteFileW(path.c_str());
  return is_removed != 0 ? std::error_code() : SystemError(::GetLastError());
}

}  // namespace kaldo
