// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/setting.h"

#include <fmt/format.h>

namespace kaldo {

tl::unexpected<Problem> NotUnderstood(ProblemKind kind, std::string found) {
  return tl::unexpected(Problem{.kind = kind, .found = std::move(found)});
}

Problem MissingNumber(const std::string& option, const std::vector<std::string>& all_missing) {
  std::vector<std::string> others = all_missing;
  std::erase(others, option);
  std::string found = option + " is needed";
  if (!others.empty()) {
    found += fmt::format("; so {} {}", others.size() == 1 ? "is" : "are", fmt::join(others, ", "));
  }
  return {.kind = ProblemKind::kNumberMissing, .found = std::move(found)};
}

}  // namespace kaldo
