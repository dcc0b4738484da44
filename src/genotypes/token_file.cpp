// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/token_file.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <system_error>

#include <fmt/format.h>
#include <openssl/evp.h>

#include "genotypes/capacities.h"

namespace kaldo {

namespace {

constexpr std::size_t kBlockBytes = std::size_t{1} << 16U;

bool IsBlank(char character) {
  return character == ' ' || (character >= '\t' && character <= '\r');
}

Problem CannotOpen(const std::string& path, std::string reason) {
  Problem problem;
  problem.sentence = fmt::format("Cannot open file \"{}\"!", path);
  problem.file = path;
  problem.found = std::move(reason);
  return problem;
}

tl::expected<std::vector<char>, Problem> ReadBytes(const std::string& path) {
  errno = 0;
  std::ifstream stream(path, std::ios::binary);
  std::vector<char> bytes;
  if (stream.is_open()) {
    std::vector<char> block(kBlockBytes);
    while (stream && bytes.size() <= kMaxInputBytes) {
      stream.read(block.data(), static_cast<std::streamsize>(block.size()));
      bytes.insert(bytes.end(), block.begin(), block.begin() + stream.gcount());
    }
  }
  if (!stream.eof() && bytes.size() <= kMaxInputBytes) {
    const int error = errno != 0 ? errno : EIO;
    return tl::unexpected(CannotOpen(path, std::generic_category().message(error)));
  }
  if (bytes.size() > kMaxInputBytes) {
    return tl::unexpected(
        CannotOpen(path, fmt::format("it holds more than {} MB and cannot be a genotype file",
                                     kMaxInputBytes / 1024 / 1024)));
  }
  return bytes;
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
  auto bytes = ReadBytes(path);
  if (!bytes) {
    return tl::unexpected(std::move(bytes.error()));
  }
  if (StartsWith(*bytes, "\xff\xfe") || StartsWith(*bytes, "\xfe\xff")) {
    return tl::unexpected(CannotOpen(
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
  return ReadBytes(path).map(DigestOf);
}

}  // namespace kaldo
