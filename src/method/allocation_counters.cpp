// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/allocation_counters.h"

namespace kaldo {

void AllocationCounters::Count(const AllocationOutcome& outcome) {
  const bool par1 = outcome.HasPair() && !outcome.par1_uncollected;
  const bool par2 = outcome.HasPair() && !outcome.par2_uncollected;
  double& counter = par1 && par2 ? both_collected
                    : par1       ? only_par1_collected
                    : par2       ? only_par2_collected
                                 : none_collected;
  ++counter;
}

}  // namespace kaldo
