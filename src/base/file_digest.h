// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kaldo {

/// What identifies the contents of a file in a run record.
struct FileDigest {
  std::uint64_t bytes = 0;
  std::string sha256;  ///< 64 hexadecimal digits

  friend bool operator==(const FileDigest&, const FileDigest&) = default;
};

/// Takes the digest of a file while it is being written.
class RunningDigest {
 public:
  /// Throws RunFailure where this machine has no SHA-256.
  RunningDigest();
  RunningDigest(const RunningDigest&) = delete;
  RunningDigest& operator=(const RunningDigest&) = delete;
  RunningDigest(RunningDigest&&) noexcept;
  RunningDigest& operator=(RunningDigest&&) noexcept;
  ~RunningDigest();

  void Add(std::string_view bytes);

  /// That of all bytes so far; more may follow.
  FileDigest SoFar() const;

 private:
  struct Hash;
  std::unique_ptr<Hash> hash_;
  std::uint64_t bytes_ = 0;
};

/// That of bytes in memory.
FileDigest DigestOf(const std::vector<char>& bytes);

}  // namespace kaldo
