// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <system_error>

namespace kaldo {

/// What became of an attempt to lock.
enum class LockState {
  kHeld,     ///< nobody else holds the lock while this object lives
  kTaken,    ///< somebody else does
  kUnknown,  ///< this disk has no locks, as some network disks
  kFailed,   ///< the lock file cannot be made; Error() tells why
};

/// A lock on a folder that dies with its owner, however that ends: a file in the folder which the
/// system knows to be locked. The file is removed in the end; one that a dead owner left behind
/// locks nobody out.
class FolderLock {
 public:
  /// Tries at once. `owner` is written into the file: others read there who holds the lock.
  FolderLock(std::string path, const std::string& owner);
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;
  FolderLock(FolderLock&&) = delete;
  FolderLock& operator=(FolderLock&&) = delete;
  ~FolderLock();

  LockState State() const { return state_; }

  /// Who holds the lock, or without locks: who may hold it, in whose place this object then does
  /// not put itself. Empty when that is not known.
  const std::string& Owner() const { return owner_; }

  std::error_code Error() const { return error_; }

 private:
  std::string path_;
  int file_ = -1;
  LockState state_ = LockState::kFailed;
  std::string owner_;
  std::error_code error_;
};

/// Who holds the lock of that path at this moment, as written there; nothing when nobody does.
/// Nothing is written.
std::optional<std::string> HolderOfLock(const std::string& path);

}  // namespace kaldo
