// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/parent_summary.h"

#include <set>

#include "allocation/allocation_confidence.h"
#include "allocation/findings.h"
#include "confidence/sibships.h"
#include "genotypes/separator.h"
#include "runs/tsv_row.h"

namespace kaldo {

namespace {

/// Counts for every slot, in which the parents of the offspring are looked up.
class Counter {
 public:
  explicit Counter(std::size_t slots) : summaries_(slots), mates_(slots) {}

  void Count(const ReportedParents& parents, const OffspringConfidence* confidence) {
    for (std::size_t k = 0; k < parents.size(); ++k) {
      if (!parents.at(k)) {
        continue;
      }
      ParentSummary& summary = summaries_[parents.at(k)->Value()];
      ++summary.offspring;
      if (confidence != nullptr && confidence->is_possible && confidence->sides.at(k).p_reported) {
        summary.expected_offspring =
            summary.expected_offspring.value_or(0) + AsTold(*confidence->sides.at(k).p_reported);
      }
      if (const auto mate = parents.at(1 - k)) {
        mates_[parents.at(k)->Value()].insert(mate->Value());
      } else {
        ++summary.with_uncollected;
      }
    }
  }

  void CountNamed(const NamedParents& parents) {
    for (const auto& parent : parents) {
      if (parent) {
        ++summaries_[parent->Value()].named;
      }
    }
  }

  ParentSummary Summary(Slot parent) const {
    ParentSummary summary = summaries_[parent.Value()];
    summary.slot = parent;
    summary.mates = mates_[parent.Value()].size();
    return summary;
  }

 private:
  std::vector<ParentSummary> summaries_;
  std::vector<std::set<std::uint32_t>> mates_;
};

}  // namespace

std::vector<ParentSummary> SummariesOfParents(Flow flow, const AllocationInput& input,
                                              const AllocationResult& result) {
  const SlotRange all = input.Parents();
  Counter counter(all.Size());
  const auto reported = ReportedBy(flow, result);
  for (std::size_t place = 0; place < reported.size(); ++place) {
    counter.Count(reported[place], ConfidenceIn(result, place));
  }
  const bool has_confidence = KnowsCertainty(result);
  if (has_confidence) {
    for (const NamedParents& parents : NamedParentsOf(result.confidence->offspring)) {
      counter.CountNamed(parents);
    }
  }
  std::vector<ParentSummary> summaries;
  summaries.reserve(all.Size());
  for (std::uint32_t slot = all.begin; slot < all.end; ++slot) {
    if (IsSeparatorName(input.table.Name(Slot{slot}).Text())) {
      continue;
    }
    summaries.push_back(counter.Summary(Slot{slot}));
    if (summaries.back().offspring == 0 && has_confidence) {
      summaries.back().expected_offspring = 0;
    }
  }
  return summaries;
}

}  // namespace kaldo
