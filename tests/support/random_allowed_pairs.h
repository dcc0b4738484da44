// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

#include "method/allowed_pairs.h"
#include "tests/support/random_study.h"

namespace kaldo::test {

/// What a test met.
using Coverage = std::map<std::string, int>;

inline Slot DrawParent(const RandomStudy& study, RandomStudyMaker& random) {
  const bool sexed = study.flow == Flow::kSexed && study.males < study.parents;
  return Slot{random.Draw(sexed ? study.males : 0, study.parents - 1)};
}

/// What may be known of an offspring; with it there may be no pair.
inline AllowedPairs DrawAllowed(const RandomStudy& study, RandomStudyMaker& random,
                                Coverage& coverage) {
  AllowedPairs allowed;
  if (random.Draw(0, 2) == 0) {
    allowed.group = random.Draw(0, static_cast<std::uint32_t>(study.groups.size()) - 1);
    ++coverage["group"];
  }
  if (random.Draw(0, 3) == 0) {
    allowed.known_parent = DrawParent(study, random);
    ++coverage["known parent"];
  }
  if (random.Draw(0, 3) != 0) {
    allowed.candidates.emplace();
    // From a few parents to all but a few.
    const std::uint32_t percent = random.Draw(1, 99);
    for (std::uint32_t slot = 0; slot < study.parents; ++slot) {
      if (random.Draw(1, 100) <= percent) {
        allowed.candidates->emplace_back(slot);
      }
    }
    ++coverage[allowed.known_parent ? "candidates with a known parent" : "candidates"];
  }
  return allowed;
}

}  // namespace kaldo::test
