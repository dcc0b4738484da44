// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "allocation/allocation_run.h"
#include "interchange/original_names.h"
#include "interchange/sex.h"

namespace kaldo {

/// The sexes of individuals by the names in their genotype files.
using Sexes = std::map<std::string, Sex, std::less<>>;

/// What became of one side of an offspring in "/Allocation results.xls".
enum class SideStatus {
  kCollected,  ///< it is allocated to a collected parent
  kOffset,     ///< UC: the parent of the best pair misses by more than the tolerance
  kNoPair,     ///< UC: no pair of collected parents is possible
};

/// One side of an offspring, in the columns of "/Allocation results.xls".
struct ExportedSide {
  SideStatus status = SideStatus::kNoPair;
  std::optional<Slot> candidate;  ///< of the best pair, whether it was accepted or not

  // Of the candidate, over the loci of the run.
  int errors = 0;  ///< loci with an offset other than 0
  std::optional<UnitDistances> max_offset;
  std::optional<LocusIndex> worst_locus;  ///< the first with that offset; none where it is 0

  /// How probably the allocation of this side is right: that the parent is the one it names, or
  /// that it was not collected.
  std::optional<double> probability;
  std::optional<Verdict> verdict;  ///< on this side, see OffspringConfidence

  /// The parent to which this side is allocated, or nothing for UC.
  std::optional<Slot> Parent() const {
    return status == SideStatus::kCollected ? candidate : std::nullopt;
  }
};

/// One offspring as all exports tell it.
struct ExportedOffspring {
  Slot slot;
  std::array<ExportedSide, 2> sides;
  std::size_t loci_typed = 0;  ///< of the run
  std::string_view pair_class;
  const AllocationOutcome* outcome = nullptr;
};

/// A finished allocation as the exports look at it. It refers to everything it is made of.
class ExportedStudy {
 public:
  ExportedStudy(const AllocationSettings& settings, const AllocationInput& input,
                const AllocationResult& result, const OriginalNames& names, const Sexes& sexes)
      : settings_(settings), input_(input), result_(result), names_(names), sexes_(sexes) {}

  const AllocationSettings& Settings() const { return settings_; }
  const AllocationInput& Input() const { return input_; }
  const AllocationResult& Result() const { return result_; }
  bool IsSexed() const { return settings_.flow == Flow::kSexed; }

  std::size_t NumberOfOffspring() const { return result_.outcomes.size(); }
  ExportedOffspring Offspring(std::size_t place) const;

  /// All collected parents in the order of their files, without separators.
  std::vector<Slot> Parents() const;

  /// The group of a collected parent: its number, counted from 1, or its name before an import.
  std::string GroupName(Slot parent) const;

  /// From the files of the two sexes, or of a table of sexes.
  Sex SexOf(Slot individual) const;

  /// The name in the genotype files, and that before an import.
  std::string Code(Slot individual) const;
  std::string Name(Slot individual) const;
  std::string LocusName(LocusIndex locus) const;

  std::size_t TypedLoci(Slot individual) const;

 private:
  ExportedSide SideOf(Slot offspring, const AllocationOutcome& outcome, bool is_first) const;
  void AddConfidence(std::size_t place, std::array<ExportedSide, 2>& sides) const;

  const AllocationSettings& settings_;
  const AllocationInput& input_;
  const AllocationResult& result_;
  const OriginalNames& names_;
  const Sexes& sexes_;
};

}  // namespace kaldo
