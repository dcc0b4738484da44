// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "base/sha256.h"

namespace kaldo {

/// SHA-256 (FIPS 180-4, https://doi.org/10.6028/NIST.FIPS.180-4) for systems that bring none.
class PlainSha256 {
 public:
  void Add(std::string_view bytes);

  /// That of all bytes so far; more may follow.
  Sha256Bytes SoFar() const;

 private:
  void TakeBlock(const char* block);

  std::array<std::uint32_t, 8> hash_{0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                     0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
  std::array<char, 64> waiting_{};  ///< the bytes of a block that is not whole yet
  std::uint64_t bytes_ = 0;         ///< all so far
};

}  // namespace kaldo
