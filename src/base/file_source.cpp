// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/file_source.h"

#include <array>
#include <cerrno>
#include <fstream>
#include <system_error>

#include <fmt/format.h>
#include <openssl/evp.h>

#include "base/input_limit.h"

namespace kaldo {

namespace {

constexpr std::size_t kBlockBytes = std::size_t{1} << 16U;

}  // namespace

Problem CannotOpenFile(const std::string& path, std::string reason) {
  return {.kind = ProblemKind::kCannotOpenFile,
          .subject = path,
          .file = path,
          .found = std::move(reason)};
}

tl::expected<std::vector<char>, Problem> DiskFiles::Read(const std::string& path) {
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
    if (error == EINTR) {
      throw RunStopped();  // Ctrl-C, while a pipe was waited for
    }
    return tl::unexpected(CannotOpenFile(path, std::generic_category().message(error)));
  }
  if (bytes.size() > kMaxInputBytes) {
    return tl::unexpected(
        CannotOpenFile(path, fmt::format("it holds more than {} MB and cannot be a genotype file",
                                         kMaxInputBytes / 1024 / 1024)));
  }
  return bytes;
}

tl::expected<std::vector<char>, Problem> ReadText(const std::string& path, FileSource& source) {
  auto bytes = source.Read(path);
  if (!bytes) {
    return bytes;
  }
  const std::string_view text(bytes->data(), bytes->size());
  if (text.starts_with("\xff\xfe") || text.starts_with("\xfe\xff")) {
    return tl::unexpected(CannotOpenFile(
        path, "it is written in UTF-16 (\"Unicode text\"); save it as plain text or UTF-8"));
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

tl::expected<FileDigest, Problem> DigestOfFile(const std::string& path) {
  return DiskFiles().Read(path).map(DigestOf);
}

}  // namespace kaldo
