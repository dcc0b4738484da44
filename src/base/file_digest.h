// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/sha256.h"

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
  void Add(std::string_view bytes);

  /// That of all bytes so far; more may follow.
  FileDigest SoFar() const;

 private:
  Sha256 hash_;
  std::uint64_t bytes_ = 0;
};

/// That of bytes in memory.
FileDigest DigestOf(const std::vector<char>& bytes);

}  // namespace kaldo
