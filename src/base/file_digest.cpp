// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/file_digest.h"

#include <array>

#include <fmt/format.h>
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

struct RunningDigest::Hash {
  Context context{EVP_MD_CTX_new()};
};

RunningDigest::RunningDigest() : hash_(std::make_unique<Hash>()) {
  Expect(EVP_DigestInit_ex(hash_->context.get(), EVP_sha256(), nullptr));
}

RunningDigest::RunningDigest(RunningDigest&&) noexcept = default;
RunningDigest& RunningDigest::operator=(RunningDigest&&) noexcept = default;
RunningDigest::~RunningDigest() = default;

void RunningDigest::Add(std::string_view bytes) {
  Expect(EVP_DigestUpdate(hash_->context.get(), bytes.data(), bytes.size()));
  bytes_ += bytes.size();
}

FileDigest RunningDigest::SoFar() const {
  const Context copy(EVP_MD_CTX_new());
  std::array<unsigned char, EVP_MAX_MD_SIZE> hash{};
  unsigned int length = 0;
  Expect(EVP_MD_CTX_copy_ex(copy.get(), hash_->context.get()));
  Expect(EVP_DigestFinal_ex(copy.get(), hash.data(), &length));
  FileDigest digest{bytes_, {}};
  for (unsigned int i = 0; i < length; ++i) {
    digest.sha256 += fmt::format("{:02x}", hash.at(i));
  }
  return digest;
}

FileDigest DigestOf(const std::vector<char>& bytes) {
  RunningDigest digest;
  digest.Add({bytes.data(), bytes.size()});
  return digest.SoFar();
}

}  // namespace kaldo
