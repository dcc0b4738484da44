// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/token_file.h"

#include <fmt/format.h>

namespace kaldo {

namespace {

bool IsBlank(char character) {
  return character == ' ' || (character >= '\t' && character <= '\r');
}

/// LF, CR LF, or a CR alone, as old programs write it.
bool EndsLine(std::string_view text, std::size_t position) {
  const bool before_lf = position + 1 < text.size() && text[position + 1] == '\n';
  return text[position] == '\n' || (text[position] == '\r' && !before_lf);
}

std::vector<Token> CutIntoTokens(std::string_view text) {
  std::vector<Token> tokens;
  std::uint32_t line = 1;
  std::size_t position = 0;
  while (position < text.size()) {
    if (IsBlank(text[position])) {
      line += EndsLine(text, position) ? 1 : 0;
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

tl::expected<TokenFile, Problem> TokenFile::Read(const std::string& path, FileSource& source,
                                                 std::size_t most_bytes) {
  auto bytes = ReadText(path, source);
  if (!bytes) {
    return tl::unexpected(std::move(bytes.error()));
  }
  if (bytes->size() > most_bytes) {
    return tl::unexpected(CannotOpenFile(
        path, fmt::format("it holds {} kB; the names of all loci take at most {} kB: is it a "
                          "genotype file?",
                          bytes->size() / 1024, most_bytes / 1024)));
  }
  auto contents = std::make_shared<Contents>();
  contents->bytes = std::move(*bytes);
  contents->digest = DigestOf(contents->bytes);
  std::string_view text(contents->bytes.data(), contents->bytes.size());
  if (text.starts_with("\xef\xbb\xbf")) {
    text.remove_prefix(3);
  }
  contents->tokens = CutIntoTokens(text);
  TokenFile file;
  file.path_ = path;
  file.contents_ = std::move(contents);
  return file;
}

TokenFile TokenFile::At(std::string path) const {
  TokenFile file = *this;
  file.path_ = std::move(path);
  return file;
}

FileOpener OpenAnew(FileSource& source) {
  return [&source](const std::string& path, std::size_t most_bytes) {
    return TokenFile::Read(path, source, most_bytes);
  };
}

}  // namespace kaldo
