// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string_view>

#include "app/base/tr.h"

namespace kaldo {

/// What stands in the columns of the offspring table, first what is read first. Parent 1 and 2 are
/// the male and the female of a sexed run.
enum class OffspringColumn {
  kPlace,  ///< in the offspring file, from 1
  kOffspring,
  kCertainty,  ///< of both sides together
  kParent1,    ///< as the results report names it
  kReported1,  ///< how probably that is right
  kParent2,
  kReported2,
  kClass,

  // As in "/Confidence.tsv", by side.
  kCandidate1,  ///< the most probable one
  kProbability1,
  kVerdict1,
  kRunnerUp1,
  kRunnerUpProbability1,
  kUncollected1,
  kCandidate2,
  kProbability2,
  kVerdict2,
  kRunnerUp2,
  kRunnerUpProbability2,
  kUncollected2,

  kPairs,
  kErrors1,
  kErrors2,
  kRank1,
  kRank2,
  kLikelihood,
  kCount,
};

struct OffspringColumnTexts {
  Phrase head;
  Phrase sexed_head;
  Phrase tip;
  bool is_numeric = false;
};

OffspringColumnTexts TextsOf(OffspringColumn column);

/// True for what is known of runs with posteriors only.
bool NeedsConfidence(OffspringColumn column);

/// The side that the column tells about, 0 or 1.
std::size_t SideOf(OffspringColumn column);

}  // namespace kaldo
