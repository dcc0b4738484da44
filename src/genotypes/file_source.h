// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include <tl/expected.hpp>

#include "genotypes/problem.h"

namespace kaldo {

/// Where the bytes of input files come from: the disk, or the memory of a process that has no such
/// disk and was sent them.
class FileSource {
 public:
  FileSource() = default;
  FileSource(const FileSource&) = delete;
  FileSource& operator=(const FileSource&) = delete;
  FileSource(FileSource&&) = delete;
  FileSource& operator=(FileSource&&) = delete;
  virtual ~FileSource() = default;

  /// The whole file, read once. A file that cannot be opened or read, or is larger than any input,
  /// is a Problem with the sentence `Cannot open file "x"!`.
  virtual tl::expected<std::vector<char>, Problem> Read(const std::string& path) = 0;
};

/// The files of this machine.
class DiskFiles final : public FileSource {
 public:
  tl::expected<std::vector<char>, Problem> Read(const std::string& path) override;
};

/// `Cannot open file "x"!` and why.
Problem CannotOpenFile(const std::string& path, std::string reason);

}  // namespace kaldo
