// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "allocation/allocation_run.h"
#include "confidence/certainty.h"

namespace kaldo {

/// What a run says of one offspring, in words that mean the same in any other run.
struct RunStatement {
  std::string offspring;
  std::array<std::string, 2> parents;  ///< names, "UC" for a parent taken as uncollected
  std::string_view the_class;          ///< "2 C", see PairClassNames()

  // Nothing where no posteriors were computed, or are not known of a run that was opened again.
  std::array<std::optional<double>, 2> p_right;  ///< that the run is right, by side
  std::optional<Certainty> certainty;            ///< of both sides together
};

/// A setting that can make results differ: "tolerance", "1".
struct StatedSetting {
  std::string name;
  std::string value;
};

/// What a run says of all its offspring, in file order.
struct RunStatements {
  Flow flow = Flow::kNonSexed;
  std::vector<RunStatement> offspring;
  std::vector<RecordedInput> files;
  std::vector<StatedSetting> settings;  ///< the same ones of every run
};

RunStatements StatementsOf(const AllocationSettings& settings, const AllocationInput& input,
                           const AllocationResult& result);

/// What a step of a cumulative sequence says, counted from 0. How sure it was is known of the last
/// one alone. The pairs of the others must have been kept.
RunStatements StatementsOfStep(const AllocationSettings& settings, const AllocationInput& input,
                               const AllocationResult& result, std::size_t step);

/// What two runs say of an offspring: its places in either of them, nothing where it is not there.
struct ComparedOffspring {
  std::optional<std::size_t> first;
  std::optional<std::size_t> second;
  bool is_changed = false;  ///< both runs have it, with different pairs

  friend bool operator==(const ComparedOffspring&, const ComparedOffspring&) = default;
};

/// Two runs side by side.
struct RunComparison {
  /// All of the first run in its order, then those that only the second one has, in its order.
  std::vector<ComparedOffspring> offspring;

  std::size_t in_both = 0;
  std::size_t changed = 0;
  std::size_t only_first = 0;
  std::size_t only_second = 0;

  /// A sentence for each role of input files whose contents differ, or that one run alone has.
  std::vector<std::string> other_files;

  /// The same for each setting that differs, with both values.
  std::vector<std::string> other_settings;
};

/// Offspring are matched by their names, and so are parents: files may list them in another order.
/// Where several offspring of a run share a name, the first one of it is matched with the first one
/// of the other run, the second with the second. Which side a parent stands on counts only where
/// both runs know the sexes.
RunComparison Compare(const RunStatements& first, const RunStatements& second);

/// "12 of 50 offspring of both runs have another pair; 2 are in this run only, 3 in the other one
/// only."
std::string ComparisonSentence(const RunComparison& comparison);

}  // namespace kaldo
