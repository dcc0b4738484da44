// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/sha256.h"

#include <openssl/evp.h>

#include "base/problem.h"

namespace kaldo {

namespace {

void Expect(int succeeded) {
  if (succeeded != 1) {
    throw RunFailure("SHA-256 is not available on this machine.");
  }
}

struct FreeContext {
  void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
};

using Context = std::unique_ptr<EVP_MD_CTX, FreeContext>;

}  // namespace

struct Sha256::State {
  Context context{EVP_MD_CTX_new()};
};

Sha256::Sha256() : state_(std::make_unique<State>()) {
  Expect(EVP_DigestInit_ex(state_->context.get(), EVP_sha256(), nullptr));
}

Sha256::Sha256(Sha256&&) noexcept = default;
Sha256& Sha256::operator=(Sha256&&) noexcept = default;
Sha256::~Sha256() = default;

void Sha256::Add(std::string_view bytes) {
  Expect(EVP_DigestUpdate(state_->context.get(), bytes.data(), bytes.size()));
}

Sha256Bytes Sha256::SoFar() const {
  const Context copy(EVP_MD_CTX_new());
  Sha256Bytes digest{};
  Expect(EVP_MD_CTX_copy_ex(copy.get(), state_->context.get()));
  Expect(EVP_DigestFinal_ex(copy.get(), digest.data(), nullptr));
  return digest;
}

}  // namespace kaldo
