// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/counted_text.h"

#include <fmt/format.h>

namespace kaldo {

std::string Counted(std::size_t count, std::string_view one, std::string_view many) {
  return fmt::format("{} {}", count, count == 1 ? one : many);
}

}  // namespace kaldo
