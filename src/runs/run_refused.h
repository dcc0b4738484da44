// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/problem.h"

namespace kaldo {

/// A run that must not begin, since it would destroy what the user has not offered, or would not be
/// the run that the user asks for.
class RunRefused : public RunFailure {
 public:
  explicit RunRefused(Problem problem);

  const Problem& Reason() const { return problem_; }

 private:
  Problem problem_;
};

}  // namespace kaldo
