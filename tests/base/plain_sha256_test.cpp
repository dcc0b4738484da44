// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/plain_sha256.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace kaldo {
namespace {

/// In parts of any sizes, asked in between, against the library that other systems use.
RC_GTEST_PROP(PlainSha256, IsThatOfTheLibrary, (std::string bytes)) {
  bytes.resize(bytes.size() + *rc::gen::inRange<std::size_t>(0, 300), 'x');
  PlainSha256 plain;
  Sha256 library;
  library.Add(bytes);
  for (std::string_view rest = bytes; !rest.empty();) {
    const auto part = std::min(*rc::gen::inRange<std::size_t>(1, 150), rest.size());
    plain.Add(rest.substr(0, part));
    rest.remove_prefix(part);
    (void)plain.SoFar();
  }
  RC_ASSERT(plain.SoFar() == library.SoFar());
}

TEST(PlainSha256, KnowsTheEndOfABlock) {
  for (std::size_t size = 50; size < 132; ++size) {
    PlainSha256 plain;
    Sha256 library;
    plain.Add(std::string(size, 'a'));
    library.Add(std::string(size, 'a'));
    EXPECT_EQ(plain.SoFar(), library.SoFar()) << size;
  }
}

}  // namespace
}  // namespace kaldo
