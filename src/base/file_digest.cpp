// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/file_digest.h"

#include <fmt/format.h>

namespace kaldo {

void RunningDigest::Add(std::string_view bytes) {
  hash_.Add(bytes);
  bytes_ += bytes.size();
}

FileDigest RunningDigest::SoFar() const {
  return {bytes_, fmt::format("{:02x}", fmt::join(hash_.SoFar(), ""))};
}

FileDigest DigestOf(const std::vector<char>& bytes) {
  RunningDigest digest;
  digest.Add({bytes.data(), bytes.size()});
  return digest.SoFar();
}

}  // namespace kaldo
