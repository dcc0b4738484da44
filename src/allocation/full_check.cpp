// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/full_check.h"

#include <algorithm>

namespace kaldo {

void LeaveOutUnknownLoci(const LociList& loci, std::optional<std::vector<std::string>>& chosen,
                         AlikeGroups<Problem>& faults) {
  if (!chosen || chosen->empty()) {
    return;
  }
  std::erase_if(*chosen, [&](const std::string& name) {
    auto problem = LociList(loci).Use({name});
    if (problem) {
      faults.Add(std::move(*problem));
    }
    return problem.has_value();
  });
  if (chosen->empty()) {
    chosen.reset();
  }
}

void LeaveOut(const std::string& locus, const LociList& loci,
              std::optional<std::vector<std::string>>& chosen) {
  if (!chosen) {
    chosen = loci.Names();
  }
  std::erase(*chosen, locus);
}

}  // namespace kaldo
