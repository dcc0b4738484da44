// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/plain_sha256.h"

#include <algorithm>
#include <bit>
#include <string>

namespace kaldo {

namespace {

constexpr std::size_t kBlockBytes = 64;
constexpr std::size_t kLengthBytes = 8;

// The fractions of the cube roots of the first 64 primes.
constexpr std::array<std::uint32_t, 64> kConstants{
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

std::uint32_t BigEndian(const char* bytes) {
  std::uint32_t word = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    word = word << 8U | static_cast<std::uint8_t>(bytes[i]);
  }
  return word;
}

std::array<std::uint32_t, 64> ScheduleOf(const char* block) {
  std::array<std::uint32_t, 64> words{};
  for (std::size_t t = 0; t < 16; ++t) {
    words.at(t) = BigEndian(block + 4 * t);
  }
  for (std::size_t t = 16; t < words.size(); ++t) {
    const std::uint32_t a = words.at(t - 15);
    const std::uint32_t b = words.at(t - 2);
    words.at(t) = words.at(t - 16) + (std::rotr(a, 7) ^ std::rotr(a, 18) ^ a >> 3U) +
                  words.at(t - 7) + (std::rotr(b, 17) ^ std::rotr(b, 19) ^ b >> 10U);
  }
  return words;
}

}  // namespace

void PlainSha256::TakeBlock(const char* block) {
  const auto words = ScheduleOf(block);
  auto [a, b, c, d, e, f, g, h] = hash_;
  for (std::size_t t = 0; t < words.size(); ++t) {
    const std::uint32_t first = h + (std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25)) +
                                ((e & f) ^ (~e & g)) + kConstants.at(t) + words.at(t);
    const std::uint32_t second =
        (std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
    h = g;
    g = f;
    f = e;
    e = d + first;
    d = c;
    c = b;
    b = a;
    a = first + second;
  }
  const std::array<std::uint32_t, 8> mixed{a, b, c, d, e, f, g, h};
  for (std::size_t i = 0; i < hash_.size(); ++i) {
    hash_.at(i) += mixed.at(i);
  }
}

void PlainSha256::Add(std::string_view bytes) {
  std::size_t filled = bytes_ % kBlockBytes;
  bytes_ += bytes.size();
  while (!bytes.empty()) {
    const std::size_t taken = std::min(bytes.size(), kBlockBytes - filled);
    std::copy_n(bytes.begin(), taken, waiting_.begin() + static_cast<std::ptrdiff_t>(filled));
    bytes.remove_prefix(taken);
    filled += taken;
    if (filled == kBlockBytes) {
      TakeBlock(waiting_.data());
      filled = 0;
    }
  }
}

Sha256Bytes PlainSha256::SoFar() const {
  PlainSha256 padded = *this;
  const std::size_t filled = (bytes_ + 1) % kBlockBytes;
  const std::size_t zeros = (2 * kBlockBytes - kLengthBytes - filled) % kBlockBytes;
  std::string padding = '\x80' + std::string(zeros, '\0');
  for (std::size_t i = kLengthBytes; i-- > 0;) {
    padding += static_cast<char>(bytes_ * 8 >> 8 * i);
  }
  padded.Add(padding);
  Sha256Bytes digest{};
  for (std::size_t i = 0; i < digest.size(); ++i) {
    digest.at(i) = static_cast<std::uint8_t>(padded.hash_.at(i / 4) >> 8 * (3 - i % 4));
  }
  return digest;
}

}  // namespace kaldo
