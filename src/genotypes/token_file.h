// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <tl/expected.hpp>

#include "base/file_source.h"

namespace kaldo {

/// One word of an input file. The text lives as long as its TokenFile.
struct Token {
  std::string_view text;
  std::uint32_t line = 0;  ///< counted from 1
};

/// A whole input file cut into words at blanks, tabs and line ends. Line ends carry no meaning for
/// the method, but each word knows its line so that a message can tell where to look. A byte-order
/// mark is skipped, and CR LF ends a line as LF does.
class TokenFile {
 public:
  TokenFile() = default;
  TokenFile(TokenFile&&) = default;
  TokenFile& operator=(TokenFile&&) = default;
  TokenFile(const TokenFile&) = delete;  // the words point into the bytes
  TokenFile& operator=(const TokenFile&) = delete;
  ~TokenFile() = default;

  /// Reads the file once. A file that cannot be opened or read is a Problem with the sentence
  /// `Cannot open file "x"!`; so is one that cannot be text (UTF-16, larger than any input).
  static tl::expected<TokenFile, Problem> Read(const std::string& path);
  static tl::expected<TokenFile, Problem> Read(const std::string& path, FileSource& source);

  /// The path as the user typed it.
  const std::string& Path() const { return path_; }
  std::span<const Token> Tokens() const { return tokens_; }
  std::string_view Text() const { return {bytes_.data(), bytes_.size()}; }
  const FileDigest& Digest() const { return digest_; }

 private:
  std::string path_;
  std::vector<char> bytes_;
  std::vector<Token> tokens_;
  FileDigest digest_;
};

}  // namespace kaldo
