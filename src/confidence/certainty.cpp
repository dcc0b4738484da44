// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/certainty.h"

#include <algorithm>

#include "confidence/confidence_summary.h"

namespace kaldo {

std::string_view Word(Certainty certainty) {
  switch (certainty) {
    case Certainty::kSure:
      return "sure";
    case Certainty::kLikely:
      return "likely";
    case Certainty::kOpen:
      return "open";
    case Certainty::kUncollected:
      break;
  }
  return "not collected";
}

std::string_view Sign(Certainty certainty) {
  switch (certainty) {
    case Certainty::kSure:
      return "\u25cf";
    case Certainty::kLikely:
      return "\u25d0";
    case Certainty::kOpen:
      return "\u25cb";
    case Certainty::kUncollected:
      break;
  }
  return "\u2013";
}

Certainty CertaintyOf(const SideConfidence& side) {
  switch (side.verdict) {
    case Verdict::kNamed:
      return side.candidate->probability >= kSureLevel ? Certainty::kSure : Certainty::kLikely;
    case Verdict::kUncollected:
      return Certainty::kUncollected;
    case Verdict::kOpen:
      break;
  }
  return Certainty::kOpen;
}

Certainty CertaintyOf(const OffspringConfidence& offspring) {
  const std::array<Certainty, 2> sides = {CertaintyOf(offspring.sides[0]),
                                          CertaintyOf(offspring.sides[1])};
  for (const Certainty certainty :
       {Certainty::kOpen, Certainty::kLikely, Certainty::kUncollected}) {
    if (sides[0] == certainty || sides[1] == certainty) {
      return certainty;
    }
  }
  return Certainty::kSure;
}

std::string_view MeaningForOffspring(Certainty certainty) {
  switch (certainty) {
    case Certainty::kSure:
      return "both parents named, each at 0.95 or more";
    case Certainty::kLikely:
      return "none open, one named below 0.95";
    case Certainty::kOpen:
      return "a parent cannot be told";
    case Certainty::kUncollected:
      break;
  }
  return "a parent is not in your files, the other is sure or not in them either";
}

std::optional<Doubt> DoubtAbout(const OffspringConfidence& offspring) {
  if (!offspring.is_typed) {
    return Doubt::kUntyped;
  }
  if (!offspring.is_possible) {
    return Doubt::kImpossible;
  }
  const auto& sides = offspring.sides;
  if (std::any_of(sides.begin(), sides.end(), [](const SideConfidence& side) {
        return side.p_reported && *side.p_reported < kImprobable;
      })) {
    return Doubt::kContradicted;
  }
  return CertaintyOf(offspring) == Certainty::kOpen ? std::optional(Doubt::kOpen) : std::nullopt;
}

std::string_view Words(Doubt doubt) {
  switch (doubt) {
    case Doubt::kUntyped:
      return "no locus is typed";
    case Doubt::kImpossible:
      return "no explanation is possible";
    case Doubt::kContradicted:
      return "the results are more probably wrong than right";
    case Doubt::kOpen:
      break;
  }
  return "a parent is open";
}

std::optional<ProbableParent> NextCandidate(const OffspringConfidence& offspring, Flow flow,
                                            std::size_t side, std::span<const Slot> others) {
  std::optional<ProbableParent> next;
  const auto consider = [&](const std::optional<ProbableParent>& candidate) {
    if (candidate && std::find(others.begin(), others.end(), candidate->slot) == others.end() &&
        (!next || candidate->probability > next->probability)) {
      next = candidate;
    }
  };
  for (std::size_t k = 0; k < offspring.sides.size(); ++k) {
    if (k == side || flow == Flow::kNonSexed) {
      consider(offspring.sides.at(k).candidate);
      consider(offspring.sides.at(k).runner_up);
    }
  }
  return offspring.is_possible ? next : std::nullopt;
}

}  // namespace kaldo
