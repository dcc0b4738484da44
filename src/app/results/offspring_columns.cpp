// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/offspring_columns.h"

namespace kaldo {

namespace {

using Column = OffspringColumn;

constexpr std::string_view kParentTip =
    "The collected parent, or UC: the true one is taken not to be among the collected.";
constexpr std::string_view kReportedTip =
    "The probability that this is right: that it is the parent, or for UC that the parent was not "
    "collected.";
constexpr std::string_view kCandidateTip = "The most probable candidate, whatever the verdict.";
constexpr std::string_view kProbabilityTip =
    "The probability that the most probable candidate is a parent.";
constexpr std::string_view kVerdictTip =
    "Named or uncollected where that is as probable as the level of confidence asks for, else "
    "open.";
constexpr std::string_view kRunnerUpTip = "The next most probable candidate.";
constexpr std::string_view kRunnerUpProbabilityTip =
    "The probability that the next most probable candidate is a parent.";
constexpr std::string_view kUncollectedTip =
    "The probability that this parent was not collected; where sexes are not known: 1 that neither "
    "was, 2 that at most one was.";
constexpr std::string_view kRankTip = "Place in the file of the parents, separators counted.";
constexpr std::string_view kErrorsTip = "Loci at which an error had to be assumed.";

OffspringColumnTexts TextsOfAllocation(Column column) {
  switch (column) {
    case Column::kPlace:
      return {"No.", "No.", "Place in the offspring file.", true};
    case Column::kOffspring:
      return {"Offspring", "Offspring", "Name of the offspring."};
    case Column::kParent1:
      return {"Parent 1", "Male", kParentTip};
    case Column::kParent2:
      return {"Parent 2", "Female", kParentTip};
    case Column::kClass:
      return {"Class", "Class", "How many parents, or which, are collected."};
    case Column::kPairs:
      return {"Pairs", "Pairs",
              "Pairs that explain the offspring equally well; the first decided. 0: no pair is "
              "possible; 5+: more than five were met.",
              true};
    case Column::kErrors1:
      return {"Errors 1", "Male errors", kErrorsTip, true};
    case Column::kErrors2:
      return {"Errors 2", "Female errors", kErrorsTip, true};
    case Column::kRank1:
      return {"Rank 1", "Male rank", kRankTip, true};
    case Column::kRank2:
      return {"Rank 2", "Female rank", kRankTip, true};
    default:
      return {"Likelihood", "Likelihood", "Of the best pair. It ranks pairs; it is no certainty.",
              true};
  }
}

}  // namespace

OffspringColumnTexts TextsOf(Column column) {
  switch (column) {
    case Column::kCertainty:
      return {"Certainty", "Certainty",
              "How far both parents can be relied on together. The list \"Show\" explains the "
              "words."};
    case Column::kReported1:
      return {"p right 1", "p male right", kReportedTip, true};
    case Column::kReported2:
      return {"p right 2", "p female right", kReportedTip, true};
    case Column::kCandidate1:
      return {"Candidate 1", "Most probable male", kCandidateTip};
    case Column::kCandidate2:
      return {"Candidate 2", "Most probable female", kCandidateTip};
    case Column::kProbability1:
      return {"p 1", "p male", kProbabilityTip, true};
    case Column::kProbability2:
      return {"p 2", "p female", kProbabilityTip, true};
    case Column::kVerdict1:
      return {"Verdict 1", "Verdict male", kVerdictTip};
    case Column::kVerdict2:
      return {"Verdict 2", "Verdict female", kVerdictTip};
    case Column::kRunnerUp1:
      return {"Runner-up 1", "Runner-up male", kRunnerUpTip};
    case Column::kRunnerUp2:
      return {"Runner-up 2", "Runner-up female", kRunnerUpTip};
    case Column::kRunnerUpProbability1:
      return {"p runner-up 1", "p runner-up male", kRunnerUpProbabilityTip, true};
    case Column::kRunnerUpProbability2:
      return {"p runner-up 2", "p runner-up female", kRunnerUpProbabilityTip, true};
    case Column::kUncollected1:
      return {"p not collected 1", "p male not collected", kUncollectedTip, true};
    case Column::kUncollected2:
      return {"p not collected 2", "p female not collected", kUncollectedTip, true};
    default:
      return TextsOfAllocation(column);
  }
}

bool NeedsConfidence(Column column) {
  return column == Column::kCertainty || column == Column::kReported1 ||
         column == Column::kReported2 ||
         (column >= Column::kCandidate1 && column <= Column::kUncollected2);
}

std::size_t SideOf(Column column) {
  const bool is_second = column == Column::kParent2 || column == Column::kReported2 ||
                         column == Column::kErrors2 || column == Column::kRank2 ||
                         (column >= Column::kCandidate2 && column <= Column::kUncollected2);
  return is_second ? 1 : 0;
}

}  // namespace kaldo
