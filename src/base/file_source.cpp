// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/file_source.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

#include <fmt/format.h>

#include "base/input_limit.h"
#include "base/path_text.h"
#include "base/stop_signal.h"

namespace kaldo {

namespace {

constexpr std::size_t kBlockBytes = std::size_t{1} << 16U;

/// Without its mark: every other byte of ASCII letters and digits is zero, which no other text has.
/// Packed files, such as workbooks, hold zeros anywhere.
bool LooksLikeUtf16(std::string_view text) {
  std::array<std::size_t, 2> zeros{};  // at even places, at odd ones
  for (std::size_t i = 0; i < text.size(); ++i) {
    zeros.at(i % 2) += text[i] == '\0' ? 1 : 0;
  }
  const auto [fewer, more] = std::minmax(zeros[0], zeros[1]);
  return more > text.size() / 3 && fewer * 10 <= more;
}

/// Systems tell in different words that a folder is no file.
int WhyNotRead(const std::string& path, int error) {
  std::error_code ignored;
  const bool is_folder = std::filesystem::is_directory(FilePath(path), ignored);
  return is_folder ? EISDIR : error != 0 ? error : EIO;
}

}  // namespace

Problem CannotOpenFile(const std::string& path, std::string reason) {
  return {.kind = ProblemKind::kCannotOpenFile,
          .subject = path,
          .file = path,
          .found = std::move(reason)};
}

tl::expected<std::vector<char>, Problem> DiskFiles::Read(const std::string& path) {
  errno = 0;
  std::ifstream stream(FilePath(path), std::ios::binary);
  std::vector<char> bytes;
  if (stream.is_open()) {
    std::vector<char> block(kBlockBytes);
    while (stream && bytes.size() <= kMaxInputBytes) {
      if (StopSignalled()) {
        throw RunStopped();
      }
      stream.read(block.data(), static_cast<std::streamsize>(block.size()));
      bytes.insert(bytes.end(), block.begin(), block.begin() + stream.gcount());
    }
  }
  if (!stream.eof() && bytes.size() <= kMaxInputBytes) {
    const int error = WhyNotRead(path, errno);
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
  if (text.starts_with("\xff\xfe") || text.starts_with("\xfe\xff") || LooksLikeUtf16(text)) {
    return tl::unexpected(CannotOpenFile(
        path, "it is written in UTF-16 (\"Unicode text\"); save it as plain text or UTF-8"));
  }
  return bytes;
}

std::optional<Problem> RefuseSpecialFile(const std::string& path, std::size_t most_bytes) {
  std::error_code error;
  const auto status = std::filesystem::status(FilePath(path), error);
  if (!std::filesystem::exists(status)) {
    return std::nullopt;
  }
  if (!std::filesystem::is_regular_file(status)) {
    return CannotOpenFile(path, "it is no regular file");
  }
  if (std::filesystem::file_size(FilePath(path), error) > most_bytes && !error) {
    return CannotOpenFile(path, fmt::format("it holds more than {} kB", most_bytes / 1024));
  }
  return std::nullopt;
}

tl::expected<FileDigest, Problem> DigestOfFile(const std::string& path) {
  errno = 0;
  std::ifstream stream(FilePath(path), std::ios::binary);
  RunningDigest digest;
  std::vector<char> block(stream.is_open() ? kBlockBytes : 0);
  while (stream) {
    if (StopSignalled()) {
      throw RunStopped();
    }
    stream.read(block.data(), static_cast<std::streamsize>(block.size()));
    digest.Add({block.data(), static_cast<std::size_t>(stream.gcount())});
  }
  if (!stream.eof()) {
    const int error = WhyNotRead(path, errno);
    return tl::unexpected(CannotOpenFile(path, std::generic_category().message(error)));
  }
  return digest.SoFar();
}

}  // namespace kaldo
