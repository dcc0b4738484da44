// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulated_iteration.h"

#include <algorithm>

#include "confidence/parent_frequencies.h"
#include "genotypes/unit_distance.h"
#include "method/undefined_parents.h"
#include "simulation/allocation_model.h"
#include "simulation/iteration_states.h"
#include "simulation/off_ladder.h"
#include "simulation/scoring.h"
#include "simulation/simulated_parents.h"

namespace kaldo {

namespace {

CandidateGroup CandidatesOf(const SimulationInput& input, const SimulationDesign& design) {
  return {input.groups[design.candidate_groups[0]].slots,
          input.groups[design.candidate_groups[1]].slots};
}

}  // namespace

SimulatedIteration::SimulatedIteration(const SimulationSettings& settings,
                                       const SimulationInput& input)
    : settings_(settings),
      input_(input),
      design_(DesignOf(settings.flow)),
      draw_(input.digits_per_field / 2, settings.random == RandomSource::kModern),
      allocation_model_(AllocationModelOf(settings)),
      offspring_{input.NumberOfParents(), input.NumberOfParents() + input.OffspringPerIteration()},
      candidates_{CandidatesOf(input, design_)},
      in_use_(input.loci.Count()),
      table_(input.loci.Count()),
      catalogues_(input.loci.Count()),
      production_matrices_(input.loci.Count()),
      readings_(input.loci.Count()),
      allocation_matrices_(input.loci.Count()),
      truth_(offspring_.Size()),
      outcomes_(offspring_.Size()) {
  for (std::uint32_t slot = 0; slot < offspring_.end; ++slot) {
    table_.AddIndividual("unnamed");
  }
}

void SimulatedIteration::UseLoci(const LocusSubset& loci) {
  loci_.loci = loci;
  std::sort(loci_.loci.begin(), loci_.loci.end());
  loci_.unit_distances.assign(loci.size(), BasePairs{});
  std::fill(in_use_.begin(), in_use_.end(), std::uint8_t{0});
  for (const LocusIndex locus : loci) {
    in_use_[locus.Value()] = 1;
  }
  for (std::uint32_t locus = 0; locus < in_use_.size(); ++locus) {
    const auto collected = input_.collected.Locus(LocusIndex{locus});
    for (std::uint32_t slot = 0; slot < collected.size(); ++slot) {
      table_.Genotype(LocusIndex{locus}, Slot{slot}) =
          in_use_[locus] != 0 ? collected[slot] : LocusGenotype{};
    }
  }
}

void SimulatedIteration::DrawAllParents(RandomNumbers& random) {
  for (const ParentalGroup& group : input_.groups) {
    if (group.sample) {
      DrawParents(table_, group.slots, *group.sample, in_use_, draw_, random);
    }
  }
}

void SimulatedIteration::CatalogueParents() {
  for (std::size_t k = 0; k < loci_.loci.size(); ++k) {
    const LocusIndex locus = loci_.loci[k];
    const auto parents = table_.Locus(locus).first(input_.NumberOfParents());
    AlleleCatalogue& catalogue = catalogues_[locus.Value()];
    // The files together hold at most 100 sizes, so that no parent can bring one too many.
    catalogue = AlleleCatalogue::Build(parents).value();
    catalogue.SortSizes();
    catalogue.ReIndex(parents);
    loci_.unit_distances[k] = UnitDistance(catalogue.Sizes());
    BuildMatrix(settings_.error_model, catalogue.Sizes(), production_matrices_[locus.Value()]);
    BuildMatrix(allocation_model_, catalogue.Sizes(), allocation_matrices_[locus.Value()]);
    if (settings_.allow_undefined_parents) {
      AddUndefinedParents(locus);
    }
  }
}

/// A parent that is undefined at a locus passes on an allele drawn from the candidates'
/// frequencies.
void SimulatedIteration::AddUndefinedParents(LocusIndex locus) {
  TransmissionMatrix& production = production_matrices_[locus.Value()];
  const auto genotypes = table_.Locus(locus);
  IndexUndefinedParents(genotypes.first(input_.NumberOfParents()), production.Alleles());
  const AlleleFrequencies frequencies =
      ParentFrequencies(genotypes, {&input_.candidates, 1}, production.Alleles());
  AddUndefinedAllele(frequencies, production);
  if (settings_.error_model.kind == ErrorKind::kNonUniform) {
    FillUndefinedRow(frequencies, production);
  }
  AddUndefinedAllele(frequencies, allocation_matrices_[locus.Value()]);
}

void SimulatedIteration::WriteReadingsOut() {
  std::size_t bytes = 0;
  for (const LocusIndex locus : loci_.loci) {
    bytes += production_matrices_[locus.Value()].Rows() * draw_.Steps();
  }
  // Every offspring reads two alleles a locus. Filling sixteen bytes takes less than one walk.
  const std::size_t walks = 2 * offspring_.Size() * loci_.loci.size();
  const bool pays = !draw_.IsFine() && bytes <= ReadingTable::kMostBytes && bytes <= 16 * walks;
  for (const LocusIndex locus : loci_.loci) {
    ReadingTable& readings = readings_[locus.Value()];
    if (pays) {
      readings.Build(production_matrices_[locus.Value()], draw_);
    } else {
      readings.Clear();
    }
  }
}

void SimulatedIteration::Produce(RandomNumbers& random) {
  WriteReadingsOut();
  std::uint32_t next = 0;
  for (std::size_t k = 0; k < design_.classes.size(); ++k) {
    const TrueParentRanges ranges = RangesOf(design_.classes[k], input_);
    for (std::int32_t i = 0; i < input_.class_sizes[k]; ++i, ++next) {
      truth_[next] = DrawTrueParents(ranges, random);
      ProducePseudoOffspring(table_, Slot{offspring_.begin + next}, truth_[next], in_use_,
                             production_matrices_, readings_, catalogues_, draw_, random);
    }
  }
}

void SimulatedIteration::LoseGenotypes(const UndefinedLoci& undefined) {
  for (const LocusIndex locus : loci_.loci) {
    for (std::uint32_t i = 0; i < offspring_.Size(); ++i) {
      if (undefined.AreUndefined(i, locus)) {
        table_.Genotype(locus, Slot{offspring_.begin + i}) = LocusGenotype{};
      }
    }
  }
}

IterationCounts SimulatedIteration::Run(IterationStart start, const RunObserver& observer) {
  // The draws of an iteration: the parents, group after group; then the pseudo-offspring, class
  // after class, each its true parents and its genotype. Nothing else draws.
  RandomNumbers random = RandomNumbersAt(settings_.random, start);
  DrawAllParents(random);
  CatalogueParents();
  Produce(random);
  if (!input_.undefined_shares.empty()) {
    LoseGenotypes({input_.undefined_shares, start});
  }
  searcher_.Prepare({.table = table_,
                     .parents = input_.candidates.Size(),
                     .loci = loci_.loci,
                     .matrices = allocation_matrices_},
                    {.flow = settings_.flow, .groups = candidates_, .names = {}});
  for (std::uint32_t i = 0; i < outcomes_.size(); ++i) {
    outcomes_[i] = searcher_.Search(Slot{offspring_.begin + i}, observer);
  }
  return Judge(settings_.tolerance);
}

IterationCounts SimulatedIteration::Judge(OffsetTolerance tolerance) {
  IterationCounts counts{};
  std::uint32_t next = 0;
  for (std::size_t k = 0; k < design_.classes.size(); ++k) {
    for (std::int32_t i = 0; i < input_.class_sizes[k]; ++i, ++next) {
      DecideSides(table_, Slot{offspring_.begin + next}, loci_, tolerance, outcomes_[next]);
      Score(settings_.flow, design_.classes[k], outcomes_[next], truth_[next], counts.at(k));
    }
  }
  return counts;
}

AlleleCatalogues SimulatedIteration::CataloguesOfAll() const {
  AlleleCatalogues catalogues(input_.loci.Count());
  for (const LocusIndex locus : loci_.loci) {
    catalogues[locus.Value()] = AlleleCatalogue::Build(table_.Locus(locus)).value();
    catalogues[locus.Value()].SortSizes();
  }
  return catalogues;
}

}  // namespace kaldo
