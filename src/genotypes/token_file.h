// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <tl/expected.hpp>

#include "base/file_source.h"
#include "base/input_limit.h"

namespace kaldo {

/// One word of an input file. The text lives as long as its TokenFile or a copy of it.
struct Token {
  std::string_view text;
  std::uint32_t line = 0;  ///< counted from 1
};

/// A whole input file cut into words at blanks, tabs and line ends. Line ends carry no meaning for
/// the method, but each word knows its line so that a message can tell where to look. A byte-order
/// mark is skipped, and CR LF or CR ends a line as LF does. Nothing changes the contents once they
/// have been read; copies share them.
class TokenFile {
 public:
  /// Reads the file once. A file that cannot be opened or read is a Problem with the sentence
  /// `Cannot open file "x"!`; so is one that cannot be text (UTF-16), and one of more bytes than a
  /// file of its kind can have.
  static tl::expected<TokenFile, Problem> Read(const std::string& path);
  static tl::expected<TokenFile, Problem> Read(const std::string& path, FileSource& source,
                                               std::size_t most_bytes = kMaxInputBytes);

  /// The same contents, with the path as the user typed it this time.
  TokenFile At(std::string path) const;

  /// The path as the user typed it.
  const std::string& Path() const { return path_; }
  std::span<const Token> Tokens() const { return contents_->tokens; }
  const FileDigest& Digest() const { return contents_->digest; }

 private:
  struct Contents {
    std::vector<char> bytes;
    std::vector<Token> tokens;  ///< point into the bytes
    FileDigest digest;
  };

  std::string path_;
  std::shared_ptr<const Contents> contents_ = std::make_shared<const Contents>();
};

/// How input files are opened by their paths as typed: read anew, or kept from before.
using FileOpener = std::function<tl::expected<TokenFile, Problem>(const std::string& path,
                                                                  std::size_t most_bytes)>;

/// Reads each file anew; the source must live as long.
FileOpener OpenAnew(FileSource& source);

}  // namespace kaldo
