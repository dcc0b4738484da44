// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include <tl/expected.hpp>

#include "base/file_digest.h"
#include "base/problem.h"

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
  /// is a Problem with the sentence `Cannot open file "x"!`. Throws RunStopped when the user stops
  /// the waiting for a pipe.
  virtual tl::expected<std::vector<char>, Problem> Read(const std::string& path) = 0;
};

/// The files of this machine.
class DiskFiles final : public FileSource {
 public:
  tl::expected<std::vector<char>, Problem> Read(const std::string& path) override;
};

/// The bytes of a file that is to be read as text. UTF-16, which some editors call "Unicode text",
/// is a Problem that says what to do.
tl::expected<std::vector<char>, Problem> ReadText(const std::string& path, FileSource& source);

/// Size and SHA-256 of a file of any length on disk, or a Problem when it cannot be read. Throws
/// RunStopped when the user stops the program meanwhile.
tl::expected<FileDigest, Problem> DigestOfFile(const std::string& path);

/// A Problem when something other than a regular file has that name, or a file of more bytes: a
/// device or a pipe that a record from somebody else names may never end. A file that does not
/// exist is none here.
std::optional<Problem> RefuseSpecialFile(const std::string& path, std::size_t most_bytes);

/// `Cannot open file "x"!` and why.
Problem CannotOpenFile(const std::string& path, std::string reason);

}  // namespace kaldo
