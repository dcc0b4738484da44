// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/token_file.h"

#include <array>
#include <cstring>

#include <fmt/format.h>
#include <openssl/evp.h>

namespace kaldo {

namespace {

bool IsBlank(char character) {
  return character == ' ' || (character >= '\t' && character <= '\r');
}

FileDigest DigestOf(const std::vector<char>& bytes) {
  std::array<unsigned char, EVP_MAX_MD_SIZE> hash{};
  unsigned int length = 0;
  if (EVP_Digest(bytes.data(), bytes.size(), hash.data(), &length, EVP_sha256(), nullptr) != 1) {
    throw RunFailure("SHA-256 is not available on this machine.");
  }
  FileDigest digest{bytes.size(), {}};
  for (unsigned int i = 0; i < length; ++i) {
    digest.sha256 += fmt::format("{:02x}", hash.at(i));
  }
  return digest;
}

bool StartsWith(const std::vector<char>& bytes, std::string_view mark) {
  return bytes.size() >= mark.size() && std::memcmp(bytes.data(), mark.data(), mark.size()) == 0;
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
  auto bytes = source.Read(path);
  if (!bytes) {
    return tl::unexpected(std::move(bytes.error()));
  }
  if (StartsWith(*bytes, "\xff\xfe") || StartsWith(*bytes, "\xfe\xff")) {
    return tl::unexpected(CannotOpenFile(
        path, "it is written in UTF-16 (\"Unicode text\"); save it as plain text or UTF-8"));
  }
  TokenFile file;
  file.path_ = path;
  file.bytes_ = std::move(*bytes);
  file.digest_ = DigestOf(file.bytes_);
  std::string_view text(file.bytes_.data(), file.bytes_.size());
  if (StartsWith(file.bytes_, "\xef\xbb\xbf")) {
    text.remove_prefix(3);
  }
  file.tokens_ = CutIntoTokens(text);
  return file;
}

tl::expected<FileDigest, Problem> DigestOfFile(const std::string& path) {
  return DiskFiles().Read(path).map(DigestOf);
}

}  // namespace kaldo
