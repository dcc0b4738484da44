// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include <tl/expected.hpp>

namespace kaldo {

/// Whether the bytes are packed by gzip, or by bgzip, which packs block by block.
bool IsGzip(std::string_view bytes);

/// What such bytes hold, or why it cannot be told: they are cut off or damaged, hold more than
/// `most` bytes, or this build has no library for it.
tl::expected<std::string, std::string> UnpackedGzip(std::string bytes, std::size_t most);

}  // namespace kaldo
