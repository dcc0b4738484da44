// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/offspring_bounds.h"

#include "allocation/cost_kernels.h"

namespace kaldo {

void OffspringBounds::Prepare(const GenotypeTable& table, std::size_t parents,
                              std::span<const LocusIndex> loci,
                              std::span<const TransmissionMatrix> matrices) {
  bounds_.Prepare(table, parents, loci, matrices);
  mark_costs_ = MarkCosts(bounds_.SideRatio());
  parents_ = static_cast<std::uint32_t>(parents);
  const std::size_t blocks = (parents + kBlock - 1) / kBlock;
  some_parents_.resize(blocks);
  all_parents_.assign(blocks, ~std::uint64_t{0});
  if (parents % kBlock != 0) {
    all_parents_.back() = (std::uint64_t{1} << parents % kBlock) - 1;
  }
}

bool OffspringBounds::Collect(Slot offspring) {
  bounds_.MakeRoom();
  possible_ = all_parents_.data();
  typed_ = 0;
  log_largest_ = 0;
  std::array<const std::uint64_t*, kRowsAtOnce> rows;
  std::size_t pending = 1;
  const auto bring_together = [&] {
    rows[0] = possible_;
    const bool two_left = AndAll(std::span(rows).first(pending), some_parents_);
    possible_ = some_parents_.data();
    pending = 1;
    return two_left;
  };
  for (std::size_t k = 0; k < bounds_.Loci(); ++k) {
    const LocusGenotype& genotype = bounds_.Genotype(k, offspring);
    // A missing locus multiplies every likelihood by exactly 1.
    if (genotype.IsMissing()) {
      continue;
    }
    LocusBounds& bounds = bounds_.Of(k, genotype);
    loci_[typed_] = {k, bounds.scores.data(), bounds.bounds.data(), &bounds};
    ++typed_;
    log_largest_ += bounds.log_largest;
    if (!bounds.all_possible) {
      rows[pending] = bounds.possible.data();
      ++pending;
      if (pending == kRowsAtOnce && !bring_together()) {
        return false;
      }
    }
  }
  return pending == 1 || bring_together();
}

std::uint16_t OffspringBounds::CostOf(std::uint32_t parent, std::uint64_t* marks) const {
  const std::uint16_t* const classes = bounds_.ClassesOf(parent);
  std::uint32_t cost = 0;
  for (std::size_t begin = 0; begin < typed_; begin += kLociPerMarkWord) {
    const std::size_t end = std::min(begin + kLociPerMarkWord, typed_);
    std::uint64_t word = 0;
    for (std::size_t i = end; i > begin; --i) {
      const LocusBounds::Bound bound = loci_[i - 1].bounds[classes[loci_[i - 1].k]];
      cost += bound.cost;
      word = word << kMarkBits | bound.marks;
    }
    *marks = word;
    ++marks;
  }
  return bounds_.Hold() ? static_cast<std::uint16_t>(cost) : std::uint16_t{0};
}

void OffspringBounds::AddUpCosts(std::uint16_t impossible, std::span<std::uint16_t> costs,
                                 std::span<std::uint16_t> minima) {
  cost_rows_.clear();
  for (std::size_t i = 0; i < typed_ && bounds_.Hold(); ++i) {
    LocusBounds& bounds = *loci_[i].all;
    if (bounds.costs.empty()) {
      bounds.AddCostsOfParents(bounds_.Classes(loci_[i].k));
    }
    cost_rows_.push_back(bounds.costs.data());
  }
  SumCosts(cost_rows_, Possible(), impossible, costs.data(), minima.data());
}

double OffspringBounds::Likelihood(std::uint32_t one, std::uint32_t two) const {
  const std::uint16_t* const classes1 = bounds_.ClassesOf(one);
  const std::uint16_t* const classes2 = bounds_.ClassesOf(two);
  double product = 1;  // 1 times the first factor is that factor
  for (std::size_t i = 0; i < typed_; ++i) {
    const TypedLocus& locus = loci_[i];
    const LocusBounds::Scores& scores1 = locus.scores[classes1[locus.k]];
    const LocusBounds::Scores& scores2 = locus.scores[classes2[locus.k]];
    product *= scores1.r * scores2.j + scores1.j * scores2.r;
  }
  return product;
}

}  // namespace kaldo
