// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/setting.h"

namespace kaldo {

tl::unexpected<Problem> NotUnderstood(ProblemKind kind, std::string found) {
  return tl::unexpected(Problem{.kind = kind, .found = std::move(found)});
}

Problem MissingNumber(std::string_view option) {
  return {.kind = ProblemKind::kNumberMissing, .found = std::string(option) + " is needed"};
}

}  // namespace kaldo
