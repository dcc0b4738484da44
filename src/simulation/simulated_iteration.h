// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "base/run_observer.h"
#include "genotypes/catalogued_loci.h"
#include "method/allocation_decision.h"
#include "search/pair_searcher.h"
#include "simulation/flows/simulation_design.h"
#include "simulation/iteration_counts.h"
#include "simulation/random_numbers.h"
#include "simulation/reading_table.h"
#include "simulation/simulation_input.h"
#include "simulation/undefined_loci.h"

namespace kaldo {

/// One iteration of a simulation, start to end: the parents that are not read from a file are
/// drawn, pseudo-offspring made, allocated to the candidates, and compared with the truth. The
/// object keeps its tables between iterations, so that none of them allocates memory; each thread
/// has one of its own. Settings and input must outlive it.
class SimulatedIteration {
 public:
  SimulatedIteration(const SimulationSettings& settings, const SimulationInput& input);

  /// Chooses the loci of the iterations that follow.
  void UseLoci(const LocusSubset& loci);

  /// Runs the iteration whose random numbers start there, and counts. Throws RunStopped
  /// when the observer asks.
  IterationCounts Run(IterationStart start, const RunObserver& observer);

  /// Judges the pairs that the last Run() found by that tolerance, and counts.
  IterationCounts Judge(OffsetTolerance tolerance);

  // What the last Run() made: the parent table with the pseudo-offspring behind it, per
  // pseudo-offspring its true parents and its allocation, and the catalogues of the parents.
  const GenotypeTable& Table() const { return table_; }
  SlotRange Offspring() const { return offspring_; }
  std::span<const ParentPair> TrueParents() const { return truth_; }
  std::span<const AllocationOutcome> Outcomes() const { return outcomes_; }
  const LociOfRun& Loci() const { return loci_; }
  const AlleleCatalogues& Catalogues() const { return catalogues_; }
  std::span<const CandidateGroup> Candidates() const { return candidates_; }

  /// The catalogues over parents and pseudo-offspring, for the listing of alleles.
  AlleleCatalogues CataloguesOfAll() const;

 private:
  void DrawAllParents(RandomNumbers& random);
  void CatalogueParents();
  void AddUndefinedParents(LocusIndex locus);
  void WriteReadingsOut();
  void Produce(RandomNumbers& random);
  void LoseGenotypes(const UndefinedLoci& undefined);

  const SimulationSettings& settings_;
  const SimulationInput& input_;
  const SimulationDesign& design_;
  UnitDraw draw_;
  ErrorModel allocation_model_;
  SlotRange offspring_;
  std::vector<CandidateGroup> candidates_;

  std::vector<std::uint8_t> in_use_;
  LociOfRun loci_;

  GenotypeTable table_;
  AlleleCatalogues catalogues_;
  std::vector<TransmissionMatrix> production_matrices_;
  std::vector<ReadingTable> readings_;
  std::vector<TransmissionMatrix> allocation_matrices_;
  PairSearcher searcher_;
  std::vector<ParentPair> truth_;
  std::vector<AllocationOutcome> outcomes_;
};

}  // namespace kaldo
