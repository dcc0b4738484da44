// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/folder_lock.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "base/file_handle.h"

namespace kaldo {

namespace {

constexpr mode_t kReadableByAll = 0666;
constexpr int kAttempts = 100;

void Close(int& file) {
  if (file >= 0) {
    ::close(std::exchange(file, -1));
  }
}

/// Who has written his name into the lock file.
std::string TextIn(int file) {
  std::array<char, 256> text{};
  const ssize_t size = ::pread(file, text.data(), text.size(), 0);
  return {text.data(), size > 0 ? static_cast<std::size_t>(size) : 0};
}

/// Opens the lock file, or makes it; negative when that fails, see LastError().
int OpenLock(const std::string& path) {
  int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, kReadableByAll);
  if (file < 0 && errno == EACCES) {
    // Left by another user: it can be locked, if not written.
    file = ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    errno = file < 0 && errno == ENOENT ? EACCES : errno;
  }
  return file;
}

bool IsStillInPlace(int file, const std::string& path) {
  struct stat opened {};
  struct stat in_place {};
  return ::fstat(file, &opened) == 0 && ::lstat(path.c_str(), &in_place) == 0 &&
         opened.st_dev == in_place.st_dev && opened.st_ino == in_place.st_ino;
}

void WriteOwner(int file, const std::string& owner) {
  // Only for the eyes of others: a full disk does not matter.
  if (::ftruncate(file, 0) == 0) {
    [[maybe_unused]] const ssize_t written = ::pwrite(file, owner.data(), owner.size(), 0);
  }
}

}  // namespace

FolderLock::FolderLock(std::string path, const std::string& owner) : path_(std::move(path)) {
  // Its owner may remove the file between the opening and the locking here: the lock would then be
  // on a file that nobody else can find, so the next file of that name is tried.
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    file_ = OpenLock(path_);
    if (file_ < 0) {
      error_ = LastError();
      return;
    }
    if (::flock(file_, LOCK_EX | LOCK_NB) == 0) {
      if (IsStillInPlace(file_, path_)) {
        state_ = LockState::kHeld;
        WriteOwner(file_, owner);
        return;
      }
      Close(file_);
      error_ = make_error_code(std::errc::resource_unavailable_try_again);
      continue;
    }
    error_ = LastError();
    if (error_ == std::errc::interrupted) {
      Close(file_);
      continue;
    }
    owner_ = TextIn(file_);
    if (error_ == std::errc::operation_would_block) {
      state_ = LockState::kTaken;
    } else {
      state_ = LockState::kUnknown;
    }
    if (state_ == LockState::kTaken || !owner_.empty()) {
      Close(file_);  // the file is somebody else's
    } else {
      WriteOwner(file_, owner);
    }
    return;
  }
}

FolderLock::~FolderLock() {
  if (file_ < 0) {
    return;
  }
  // Removed while it is locked: nobody can have locked it since. A second attempt, since a file
  // that stays would puzzle the user.
  if (::unlink(path_.c_str()) != 0 && errno != ENOENT) {
    (void)::unlink(path_.c_str());
  }
  Close(file_);
}

std::optional<std::string> HolderOfLock(const std::string& path) {
  int file = ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
  if (file < 0) {
    return std::nullopt;
  }
  // Held for an instant where nobody else does, and shared with others who only ask.
  const bool is_held = ::flock(file, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
  auto holder = is_held ? std::optional(TextIn(file)) : std::nullopt;
  Close(file);
  return holder;
}

}  // namespace kaldo
