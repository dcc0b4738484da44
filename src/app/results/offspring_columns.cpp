// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/offspring_columns.h"

namespace kaldo {

namespace {

using Column = OffspringColumn;

constexpr auto kParentTip =
    Phrase("The collected parent, or UC: the true one is taken not to be among the collected.");
constexpr auto kReportedTip = Phrase(
    "The probability that this is right: that it is the parent, or for UC that the parent was not "
    "collected.");
constexpr auto kCandidateTip = Phrase("The most probable candidate, whatever the verdict.");
constexpr auto kProbabilityTip =
    Phrase("The probability that the most probable candidate is a parent.");
constexpr auto kVerdictTip = Phrase(
    "Named or uncollected where that is as probable as the level of confidence asks for, else "
    "open.");
constexpr auto kRunnerUpTip = Phrase("The next most probable candidate.");
constexpr auto kRunnerUpProbabilityTip =
    Phrase("The probability that the next most probable candidate is a parent.");
constexpr auto kUncollectedTip = Phrase(
    "The probability that this parent was not collected; where sexes are not known: 1 that neither "
    "was, 2 that at most one was.");
constexpr auto kRankTip = Phrase("Place in the file of the parents, separators counted.");
constexpr auto kErrorsTip = Phrase("Loci at which an error had to be assumed.");

OffspringColumnTexts TextsOfAllocation(Column column) {
  switch (column) {
    case Column::kPlace:
      return {Phrase("No."), Phrase("No."), Phrase("Place in the offspring file."), true};
    case Column::kOffspring:
      return {Phrase("Offspring"), Phrase("Offspring"), Phrase("Name of the offspring.")};
    case Column::kParent1:
      return {Phrase("Parent 1"), Phrase("Male"), kParentTip};
    case Column::kParent2:
      return {Phrase("Parent 2"), Phrase("Female"), kParentTip};
    case Column::kClass:
      return {Phrase("Class"), Phrase("Class"),
              Phrase("How many parents, or which, are collected.")};
    case Column::kPairs:
      return {
          Phrase("Pairs"), Phrase("Pairs"),
          Phrase("Pairs that explain the offspring equally well; the first decided. 0: no pair is "
                 "possible; 5+: more than five were met."),
          true};
    case Column::kErrors1:
      return {Phrase("Errors 1"), Phrase("Male errors"), kErrorsTip, true};
    case Column::kErrors2:
      return {Phrase("Errors 2"), Phrase("Female errors"), kErrorsTip, true};
    case Column::kRank1:
      return {Phrase("Rank 1"), Phrase("Male rank"), kRankTip, true};
    case Column::kRank2:
      return {Phrase("Rank 2"), Phrase("Female rank"), kRankTip, true};
    default:
      return {Phrase("Likelihood"), Phrase("Likelihood"),
              Phrase("Of the best pair. It ranks pairs; it is no certainty."), true};
  }
}

}  // namespace

OffspringColumnTexts TextsOf(Column column) {
  switch (column) {
    case Column::kCertainty:
      return {
          Phrase("Certainty"), Phrase("Certainty"),
          Phrase("How far both parents can be relied on together. The list \"Show\" explains the "
                 "words.")};
    case Column::kReported1:
      return {Phrase("p right 1"), Phrase("p male right"), kReportedTip, true};
    case Column::kReported2:
      return {Phrase("p right 2"), Phrase("p female right"), kReportedTip, true};
    case Column::kCandidate1:
      return {Phrase("Candidate 1"), Phrase("Most probable male"), kCandidateTip};
    case Column::kCandidate2:
      return {Phrase("Candidate 2"), Phrase("Most probable female"), kCandidateTip};
    case Column::kProbability1:
      return {Phrase("p 1"), Phrase("p male"), kProbabilityTip, true};
    case Column::kProbability2:
      return {Phrase("p 2"), Phrase("p female"), kProbabilityTip, true};
    case Column::kVerdict1:
      return {Phrase("Verdict 1"), Phrase("Verdict male"), kVerdictTip};
    case Column::kVerdict2:
      return {Phrase("Verdict 2"), Phrase("Verdict female"), kVerdictTip};
    case Column::kRunnerUp1:
      return {Phrase("Runner-up 1"), Phrase("Runner-up male"), kRunnerUpTip};
    case Column::kRunnerUp2:
      return {Phrase("Runner-up 2"), Phrase("Runner-up female"), kRunnerUpTip};
    case Column::kRunnerUpProbability1:
      return {Phrase("p runner-up 1"), Phrase("p runner-up male"), kRunnerUpProbabilityTip, true};
    case Column::kRunnerUpProbability2:
      return {Phrase("p runner-up 2"), Phrase("p runner-up female"), kRunnerUpProbabilityTip, true};
    case Column::kUncollected1:
      return {Phrase("p not collected 1"), Phrase("p male not collected"), kUncollectedTip, true};
    case Column::kUncollected2:
      return {Phrase("p not collected 2"), Phrase("p female not collected"), kUncollectedTip, true};
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
