// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "base/disk_file.h"
#include "base/file_digest.h"

namespace kaldo {

/// A report being written, away from its final place. Text goes out in large blocks, so that a
/// report of any length takes little memory.
class ReportFile {
 public:
  /// Opens `path`; messages speak of `shown`, the final place. Throws RunFailure when that fails.
  ReportFile(const std::string& path, std::string shown);

  /// Throws RunFailure when the disk is full or the folder has gone.
  void Append(std::string_view text);

  /// Writes what is still in memory, waits until the disk holds all of it and closes the file.
  void Finish();

  /// True while nothing was appended.
  bool IsEmpty() const { return is_empty_; }

  /// That of all text so far.
  FileDigest Digest() const { return digest_.SoFar(); }

 private:
  void Write();
  [[noreturn]] void Fail(std::string_view what, std::error_code error) const;

  std::string shown_;
  std::string pending_;
  RunningDigest digest_;
  NewFile file_;
  bool is_empty_ = true;
};

}  // namespace kaldo
