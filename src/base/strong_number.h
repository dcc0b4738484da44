// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <compare>
#include <concepts>

namespace kaldo {

/// A number that keeps its meaning: two StrongNumbers with different tags neither convert into each
/// other nor compare, so that an allele size cannot be taken for the place of that allele in a
/// catalogue. Value() gives the plain number where arithmetic is wanted.
template <typename Tag, std::integral Representation>
class StrongNumber {
 public:
  constexpr StrongNumber() = default;
  constexpr explicit StrongNumber(Representation value) : value_(value) {}

  constexpr Representation Value() const { return value_; }

  /// Steps to the next number, for walks over places.
  constexpr StrongNumber& operator++() {
    ++value_;
    return *this;
  }

  friend constexpr auto operator<=>(StrongNumber, StrongNumber) = default;

 private:
  Representation value_{};
};

}  // namespace kaldo
