// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/file_source.h"

#include <cerrno>
#include <fstream>
#include <system_error>

#include <fmt/format.h>

#include "genotypes/capacities.h"

namespace kaldo {

namespace {

constexpr std::size_t kBlockBytes = std::size_t{1} << 16U;

}  // namespace

Problem CannotOpenFile(const std::string& path, std::string reason) {
  Problem problem;
  problem.sentence = fmt::format("Cannot open file \"{}\"!", path);
  problem.file = path;
  problem.found = std::move(reason);
  return problem;
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
    return tl::unexpected(CannotOpenFile(path, std::generic_category().message(error)));
  }
  if (bytes.size() > kMaxInputBytes) {
    return tl::unexpected(
        CannotOpenFile(path, fmt::format("it holds more than {} MB and cannot be a genotype file",
                                         kMaxInputBytes / 1024 / 1024)));
  }
  return bytes;
}

}  // namespace kaldo
