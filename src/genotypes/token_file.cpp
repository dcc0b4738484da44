// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/token_file.h"

namespace kaldo {

namespace {

bool IsBlank(char character) {
  return character == ' ' || (character >= '\t' && character <= '\r');
}

std::vector<Token> CutIntoTokens(std::string_view text) {
  std::vector<Token> tokens;
  std::uint32_t line = 1;
  std::size_t position = 0;
  while (position < text.size()) {
    if (IsBlank(text[position])) {
      line += text[position] == '\n' ? 1 : 0;
      ++position;
      continue;
    }
    const std::size_t begin = position;
    while (position < text.size() && !IsBlank(text[position])) {
      ++position;
    }
    tokens.push_back({text.substr(begin, position - begin), line});
  }
  return tokens;
}

}  // namespace

tl::expected<TokenFile, Problem> TokenFile::Read(const std::string& path) {
  DiskFiles disk;
  return Read(path, disk);
}

tl::expected<TokenFile, Problem> TokenFile::Read(const std::string& path, FileSource& source) {
  auto bytes = ReadText(path, source);
  if (!bytes) {
    return tl::unexpected(std::move(bytes.error()));
  }
  TokenFile file;
  file.path_ = path;
  file.bytes_ = std::move(*bytes);
  file.digest_ = DigestOf(file.bytes_);
  std::string_view text = file.Text();
  if (text.starts_with("\xef\xbb\xbf")) {
    text.remove_prefix(3);
  }
  file.tokens_ = CutIntoTokens(text);
  return file;
}

}  // namespace kaldo
