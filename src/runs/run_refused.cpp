// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/run_refused.h"

namespace kaldo {

namespace {

std::string Told(const Problem& problem) {
  const std::string detail = DetailLine(problem);
  return detail.empty() ? SentenceOf(problem) : SentenceOf(problem) + '\n' + detail;
}

}  // namespace

RunRefused::RunRefused(Problem problem) : RunFailure(Told(problem)), problem_(std::move(problem)) {}

}  // namespace kaldo
