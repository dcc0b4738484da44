// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "search/locus_bounds.h"
#include "search/parent_classes.h"
#include "search/search_study.h"

namespace kaldo {

/// The bounds of every genotype that offspring have at the loci of a run, worked out when a
/// genotype is first met. Offspring share them: there are few genotypes at a locus.
///
/// When their memory is used up they start anew, so that loci with very many genotypes cost time
/// but no more memory.
class GenotypeBounds {
 public:
  /// Memory that the bounds may take before they start anew.
  static constexpr std::size_t kBytes = std::size_t{128} << 20U;

  explicit GenotypeBounds(std::size_t bytes = kBytes) : bytes_(bytes) {}

  void Prepare(const SearchStudy& study);

  std::size_t Loci() const { return loci_.size(); }

  /// False where probabilities are negative: then no bound says anything about a likelihood.
  bool AreSound() const { return sound_; }

  /// The ratio of scores that makes a class one-sided; see ClashCosts.
  double SideRatio() const { return side_ratio_; }

  /// Makes room for one offspring. What BoundsFor() returned for earlier ones may be gone
  /// afterwards.
  void MakeRoom();

  /// The bounds of an offspring's genotype, not missing, at the k-th locus of the run.
  LocusBounds& BoundsFor(std::size_t k, Slot offspring) {
    const Locus& locus = loci_[k];
    const LocusGenotype& genotype = locus.genotypes[offspring.Value()];
    const std::int32_t number = locus.numbers[Pair(locus, genotype.index1, genotype.index2)];
    return number != kNoBounds ? bounds_[static_cast<std::size_t>(number)] : Add(k, genotype);
  }

  const ParentClasses& Classes(std::size_t k) const { return loci_[k].classes; }

  /// The classes of one parent at all loci of the run.
  const std::uint16_t* ClassesOf(Slot parent) const {
    return classes_by_parent_.data() + parent.Value() * loci_.size();
  }

 private:
  static constexpr std::int32_t kNoBounds = -1;

  struct Locus {
    std::span<const LocusGenotype> genotypes;
    const TransmissionMatrix* matrix = nullptr;
    std::size_t alleles = 0;
    std::vector<std::int32_t> numbers;  ///< in bounds_ by (r, j), or kNoBounds
    ParentClasses classes;
  };

  static std::size_t Pair(const Locus& locus, AlleleIndex r, AlleleIndex j) {
    return r.Value() * locus.alleles + j.Value();
  }

  LocusBounds& Add(std::size_t k, const LocusGenotype& offspring);
  void LimitMemory(std::size_t parents);

  std::vector<Locus> loci_;
  std::vector<std::uint16_t> classes_by_parent_;  ///< by slot and locus of the run
  bool sound_ = true;
  double side_ratio_ = 0;
  std::vector<LocusBounds> bounds_;
  std::size_t in_use_ = 0;
  std::size_t bytes_;
  std::size_t most_ = 0;  ///< bounds in so many bytes
};

}  // namespace kaldo
