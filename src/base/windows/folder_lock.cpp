// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/folder_lock.h"

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <io.h>
#include <utility>

#include "base/file_handle.h"
#include "base/path_text.h"
#include "base/windows/system_error.h"

namespace kaldo {

namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE Open(const std::string& path, DWORD access, DWORD share, DWORD how, DWORD flags) {
  return ::CreateFileW(FilePath(path).c_str(), access, share, nullptr, how,
                       FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT | flags, nullptr);
}

/// Who has written his name into the lock file.
std::string OwnerIn(const std::string& path) {
  const HANDLE file = Open(path, GENERIC_READ, kShareAll, OPEN_EXISTING, 0);
  if (file == INVALID_HANDLE_VALUE) {
    return {};
  }
  std::array<char, 256> text{};
  DWORD size = 0;
  (void)::ReadFile(file, text.data(), static_cast<DWORD>(text.size()), &size, nullptr);
  ::CloseHandle(file);
  return {text.data(), size};
}

}  // namespace

// The lock is the open file, which its owner lets others read but not write: Windows closes it and
// removes it however the owner ends.
FolderLock::FolderLock(std::string path, const std::string& owner) : path_(std::move(path)) {
  const HANDLE file =
      Open(path_, GENERIC_READ | GENERIC_WRITE | DELETE, FILE_SHARE_READ | FILE_SHARE_DELETE,
           OPEN_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE);
  if (file != INVALID_HANDLE_VALUE) {
    state_ = LockState::kHeld;
    file_ = ::_open_osfhandle(reinterpret_cast<intptr_t>(file), _O_BINARY | _O_NOINHERIT);
    // Only for the eyes of others: a full disk does not matter.
    (void)CutFile(file_, 0);
    (void)WriteAll(file_, owner);
    return;
  }
  const DWORD error = ::GetLastError();
  error_ = SystemError(error);
  if (error == ERROR_SHARING_VIOLATION) {
    state_ = LockState::kTaken;
    owner_ = OwnerIn(path_);
  }
}

FolderLock::~FolderLock() {
  if (file_ >= 0) {
    (void)CloseFile(std::exchange(file_, -1));
  }
}

std::optional<std::string> HolderOfLock(const std::string& path) {
  const HANDLE file = Open(path, GENERIC_WRITE, kShareAll, OPEN_EXISTING, 0);
  if (file != INVALID_HANDLE_VALUE) {
    ::CloseHandle(file);
    return std::nullopt;
  }
  return ::GetLastError() == ERROR_SHARING_VIOLATION ? std::optional(OwnerIn(path)) : std::nullopt;
}

}  // namespace kaldo
