// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/sha256.h"

#include "base/plain_sha256.h"

namespace kaldo {

struct Sha256::State {
  PlainSha256 hash;
};

Sha256::Sha256() : state_(std::make_unique<State>()) {}
Sha256::Sha256(Sha256&&) noexcept = default;
Sha256& Sha256::operator=(Sha256&&) noexcept = default;
Sha256::~Sha256() = default;

void Sha256::Add(std::string_view bytes) { state_->hash.Add(bytes); }

Sha256Bytes Sha256::SoFar() const { return state_->hash.SoFar(); }

}  // namespace kaldo
