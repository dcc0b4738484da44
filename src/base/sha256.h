// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>

namespace kaldo {

using Sha256Bytes = std::array<std::uint8_t, 32>;

/// SHA-256 (FIPS 180-4), as the library or the system at hand computes it.
class Sha256 {
 public:
  /// Throws RunFailure where this machine has no SHA-256.
  Sha256();
  Sha256(const Sha256&) = delete;
  Sha256& operator=(const Sha256&) = delete;
  Sha256(Sha256&&) noexcept;
  Sha256& operator=(Sha256&&) noexcept;
  ~Sha256();

  void Add(std::string_view bytes);

  /// That of all bytes so far; more may follow.
  Sha256Bytes SoFar() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace kaldo
