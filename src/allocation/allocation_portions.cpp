// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_portions.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "allocation/allocation_confidence.h"
#include "base/field_packing.h"
#include "base/problem.h"
#include "confidence/parent_frequencies.h"
#include "genotypes/unit_distance.h"
#include "method/undefined_parents.h"
#include "search/pair_searcher.h"

namespace kaldo {

LociOfRun LociOfCombination(const AllocationInput& input, std::vector<LocusIndex> loci) {
  std::sort(loci.begin(), loci.end());
  LociOfRun run{std::move(loci), {}};
  for (const LocusIndex locus : run.loci) {
    run.unit_distances.push_back(UnitDistance(input.catalogues[locus.Value()].Sizes()));
  }
  return run;
}

std::vector<TransmissionMatrix> BuildMatrices(const AllocationSettings& settings,
                                              const AllocationInput& input) {
  std::vector<TransmissionMatrix> matrices;
  for (const AlleleCatalogue& catalogue : input.catalogues) {
    matrices.push_back(BuildMatrix(settings.error_model, catalogue.Sizes()));
  }
  if (settings.allow_undefined_parents) {
    const auto parents = RangesOfParents(settings.flow, input.groups);
    for (const LocusIndex locus : input.loci.LociInUse()) {
      TransmissionMatrix& matrix = matrices[locus.Value()];
      AddUndefinedAllele(ParentFrequencies(input.table.Locus(locus), parents, matrix.Alleles()),
                         matrix);
    }
  }
  return matrices;
}

namespace {

/// A portion among 50,000 parents takes up to a tenth of a second.
constexpr std::size_t kMostOffspringPerPortion = 256;

class AllocationWorker final : public PortionWorker {
 public:
  AllocationWorker(const AllocationSettings& settings, const AllocationInput& input,
                   std::span<const TransmissionMatrix> matrices)
      : settings_(settings), input_(input), matrices_(matrices) {}

  std::string Do(std::string_view order, RunObserver& observer) override {
    const auto portion = ByteUnpacker(order).Get<Portion>();
    UseCombination(portion.group);
    std::vector<AllocationOutcome> outcomes;
    outcomes.reserve(portion.Size());
    for (std::size_t i = portion.begin; i < portion.end; ++i) {
      const Slot offspring{input_.offspring.begin + static_cast<std::uint32_t>(i)};
      outcomes.push_back(input_.allowed.empty()
                             ? searcher_.Search(offspring, observer)
                             : searcher_.Search(offspring, input_.allowed[i], observer));
      DecideSides(input_.table, offspring, loci_, settings_.tolerance, outcomes.back());
      observer.OnSteps(1);
    }
    BytePacker packer;
    for (const AllocationOutcome& outcome : outcomes) {
      PackFields(outcome, packer);
    }
    return packer.Take();
  }

 private:
  void UseCombination(std::size_t combination) {
    if (combination_ == combination) {
      return;
    }
    loci_ = LociOfCombination(input_, input_.combinations.at(combination));
    searcher_.Prepare(
        {.table = input_.table,
         .parents = input_.Parents().Size(),
         .loci = loci_.loci,
         .matrices = matrices_},
        {.flow = settings_.flow, .groups = input_.groups, .names = input_.table.Names()});
    combination_ = combination;
  }

  const AllocationSettings& settings_;
  const AllocationInput& input_;
  std::span<const TransmissionMatrix> matrices_;
  std::optional<std::size_t> combination_;
  LociOfRun loci_;
  PairSearcher searcher_;
};

/// None may lead out of the table of parents.
bool IsPossible(const AllocationOutcome& outcome, std::size_t parents) {
  if (outcome.pair_entries < 0 || outcome.pair_entries % 2 != 0 ||
      outcome.pair_entries > 2 * static_cast<int>(KeptPairs::kCapacity) ||
      !std::isfinite(outcome.best_likelihood) || outcome.errors_par1 < 0 ||
      outcome.errors_par2 < 0) {
    return false;
  }
  const auto pairs = outcome.Pairs();
  return std::all_of(pairs.begin(), pairs.end(), [parents](const ParentPair& pair) {
    return pair.parent1.Value() < parents && pair.parent2.Value() < parents;
  });
}

}  // namespace

AllocationTask::AllocationTask(const AllocationSettings& settings, const AllocationInput& input)
    : settings_(settings), input_(input), matrices_(BuildMatrices(settings, input)) {}

std::unique_ptr<PortionWorker> AllocationTask::MakeWorker() const {
  return std::make_unique<AllocationWorker>(settings_, input_, matrices_);
}

std::size_t AllocationPlan::MostItemsPerPortion() const { return kMostOffspringPerPortion; }

std::string AllocationPlan::Order(const Portion& portion) {
  BytePacker packer;
  packer.Add(portion);
  return packer.Take();
}

bool AllocationPlan::IsPossible(const Portion& portion, std::string_view result) const {
  const auto outcomes = UnpackUpToTheEnd<AllocationOutcome>(result);
  return outcomes.size() == portion.Size() &&
         std::all_of(outcomes.begin(), outcomes.end(), [&](const AllocationOutcome& outcome) {
           return kaldo::IsPossible(outcome, input_.Parents().Size());
         });
}

bool AllocationPlan::Take(const Portion& portion, std::string_view result) {
  if (portion.begin == 0) {
    if (portion.group > 0) {
      result_.earlier_pairs.push_back(ReportedBy(flow_, result_));
    }
    result_.loci = LociOfCombination(input_, input_.combinations[portion.group]);
    result_.outcomes.resize(input_.NumberOfOffspring());
    result_.counters.emplace_back();
  }
  ByteUnpacker unpacker(result);
  for (std::size_t i = portion.begin; i < portion.end; ++i) {
    UnpackFields(result_.outcomes[i], unpacker);
    result_.counters.back().Count(result_.outcomes[i]);
  }
  return true;
}

}  // namespace kaldo
