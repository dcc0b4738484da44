// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <tl/expected.hpp>

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

/// What identifies the contents of an input file in a run record.
struct FileDigest {
  std::uint64_t bytes = 0;
  std::string sha256;  ///< 64 hexadecimal digits

  friend bool operator==(const FileDigest&, const FileDigest&) = default;
};

/// Throws RunFailure where this machine has no SHA-256.
FileDigest DigestOf(const std::vector<char>& bytes);

/// Size and SHA-256 of a file on disk, or a Problem when it cannot be read.
tl::expected<FileDigest, Problem> DigestOfFile(const std::string& path);

/// `Cannot open file "x"!` and why.
Problem CannotOpenFile(const std::string& path, std::string reason);

}  // namespace kaldo
