// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/sha256.h"

#include <string>

#include "base/problem.h"
#include "base/windows/system_error.h"
//
#include <bcrypt.h>

namespace kaldo {

namespace {

constexpr std::size_t kMostBytesAtOnce = std::size_t{1} << 20U;

void Expect(NTSTATUS status) {
  if (status < 0) {
    throw RunFailure("SHA-256 is not available on this machine.");
  }
}

BCRYPT_ALG_HANDLE Algorithm() {
  static const BCRYPT_ALG_HANDLE algorithm = [] {
    BCRYPT_ALG_HANDLE opened = nullptr;
    Expect(::BCryptOpenAlgorithmProvider(&opened, BCRYPT_SHA256_ALGORITHM, nullptr, 0));
    return opened;
  }();
  return algorithm;
}

}  // namespace

struct Sha256::State {
  State() = default;
  State(const State&) = delete;
  State& operator=(const State&) = delete;
  State(State&&) = delete;
  State& operator=(State&&) = delete;
  ~State() { (void)::BCryptDestroyHash(hash); }

  BCRYPT_HASH_HANDLE hash = nullptr;
};

Sha256::Sha256() : state_(std::make_unique<State>()) {
  Expect(::BCryptCreateHash(Algorithm(), &state_->hash, nullptr, 0, nullptr, 0, 0));
}

Sha256::Sha256(Sha256&&) noexcept = default;
Sha256& Sha256::operator=(Sha256&&) noexcept = default;
Sha256::~Sha256() = default;

void Sha256::Add(std::string_view bytes) {
  while (!bytes.empty()) {
    std::string part(bytes.substr(0, kMostBytesAtOnce));  // Windows takes no const bytes
    Expect(::BCryptHashData(state_->hash, reinterpret_cast<PUCHAR>(part.data()),
                            static_cast<ULONG>(part.size()), 0));
    bytes.remove_prefix(part.size());
  }
}

Sha256Bytes Sha256::SoFar() const {
  State copy;
  Sha256Bytes digest{};
  Expect(::BCryptDuplicateHash(state_->hash, &copy.hash, nullptr, 0, 0));
  Expect(::BCryptFinishHash(copy.hash, digest.data(), static_cast<ULONG>(digest.size()), 0));
  return digest;
}

}  // namespace kaldo
