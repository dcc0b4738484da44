// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "confidence/verdict.h"
#include "method/error_model.h"
#include "method/flow.h"
#include "method/offset_tolerance.h"
#include "runs/exports.h"
#include "runs/keeping_pace.h"
#include "runs/value_kinds.h"
#include "simulation/undefined_loci.h"

namespace kaldo {

/// Where the candidates of a simulation come from.
enum class Procedure {
  kParental,     ///< after the field work: the genotypes of the parents collected
  kPreParental,  ///< before it: pseudo-collected parents drawn from a sample at every iteration
};

inline constexpr std::array<NamedChoice<Procedure>, 2> kProcedures{
    {{Procedure::kParental, "parental"}, {Procedure::kPreParental, "preparental"}}};

/// Which loci a simulation runs with.
enum class LociStrategy {
  kChoice,      ///< the loci in use, once
  kAll,         ///< every subset of them, from the smallest size wanted on
  kMinimal,     ///< the same subsets, until one is as good as the criterion
  kCumulative,  ///< the first 1, 2, ... of a sequence
};

inline constexpr std::array<NamedChoice<LociStrategy>, 4> kStrategies{
    {{LociStrategy::kChoice, "choice", "the loci in use"},
     {LociStrategy::kAll, "all", "every subset"},
     {LociStrategy::kMinimal, "minimal", "subsets until one reaches the criterion"},
     {LociStrategy::kCumulative, "cumulative", "a sequence"}}};

/// One set of parents: all of them in the non-sexed flow, the males or the females in the sexed
/// one.
struct ParentalSet {
  std::string collected_file;           ///< PARENTAL: genotypes of the collected parents
  std::string pseudo_collected_sample;  ///< PRE-PARENTAL: the sample to draw from
  std::int32_t pseudo_collected = 0;    ///< PRE-PARENTAL: parents to draw
  std::string uncollected_sample;       ///< the sample to draw the uncollected parents from
  double uncollected = 0;               ///< parents to draw; 10.5 are eleven

  // Sexed flow: estimated numbers in the population, which only set the proportions of the classes.
  double estimated_collected = 0;
  double estimated_uncollected = 0;

  friend bool operator==(const ParentalSet&, const ParentalSet&) = default;
};

/// Which of the generated files stay on disk.
struct KeptFiles {
  bool parents = false;
  bool offspring = false;
  bool matrices = false;

  friend bool operator==(const KeptFiles&, const KeptFiles&) = default;
};

inline constexpr std::array<NamedChoice<bool KeptFiles::*>, 3> kKeptFiles{
    {{&KeptFiles::parents, "parents"},
     {&KeptFiles::offspring, "offspring"},
     {&KeptFiles::matrices, "matrices"}}};

/// Where random numbers come from.
enum class RandomSource {
  kDefault,  ///< RandomNumbers: one stream of 15-bit values, repeatable by every version
  kModern,   ///< a stream of 64-bit values for each iteration, see CounterStream
};

inline constexpr std::array<NamedChoice<RandomSource>, 2> kRandomSources{
    {{RandomSource::kDefault, "default", "15-bit values"},
     {RandomSource::kModern, "modern", "64-bit values, a stream for each iteration"}}};

/// Which random numbers the subsets of loci have.
enum class SubsetRandoms {
  kOwn,     ///< each others: the stream goes on from subset to subset
  kCommon,  ///< all the same, so that chance alone parts two subsets less
};

inline constexpr std::array<NamedChoice<SubsetRandoms>, 2> kSubsetRandoms{
    {{SubsetRandoms::kOwn, "own", "each subset others"},
     {SubsetRandoms::kCommon, "common", "all subsets the same"}}};

/// Everything a user chooses for a simulation. Each member but the last is declared in the table
/// below.
struct SimulationSettings {
  Flow flow = Flow::kNonSexed;
  Procedure procedure = Procedure::kParental;

  std::string project;
  std::string loci_file;

  /// The parental sets: one in the non-sexed flow, males and females in the sexed one.
  std::array<ParentalSet, 2> sets;

  std::int32_t iterations = 1;
  std::int32_t offspring_per_iteration = 1;
  OffsetTolerance tolerance{1};
  ErrorModel error_model = kErrorModelUnlessTold;

  std::optional<std::vector<std::string>> loci_in_use;  ///< by name; all when nothing is said

  LociStrategy strategy = LociStrategy::kChoice;
  std::int32_t start_with = 1;         ///< smallest number of loci of the subset strategies
  double criterion = 0.95;             ///< kMinimal: the probability that any allocation is correct
  std::vector<std::int32_t> sequence;  ///< kCumulative: position of each locus; empty: file order

  bool print_iterations = false;
  bool print_subset_statistics = false;
  std::optional<KeptFiles> keep;  ///< nothing said: see KeptFilesOf
  ExportForms also;               ///< further files, one of kSimulationExportForms

  bool allow_undefined_parents = false;  ///< among collected ones, see AddUndefinedAllele
  bool scores_confidence = false;  ///< whether posterior probabilities are compared with the truth
  UndefinedInSample undefined_in_sample = UndefinedInSample::kCount;  ///< of uncollected parents
  double confidence_level = kDefaultConfidenceLevel;  ///< scored beside the usual ones

  /// Non-sexed: with which model the pseudo-offspring are allocated; nothing: with that of the run.
  std::optional<ErrorModel> allocate_with = ErrorModel{.kind = ErrorKind::kNoError};

  double undefined = 0;        ///< share of loci at which pseudo-offspring are undefined, below 1
  std::string undefined_like;  ///< or a file of offspring: as often, locus by locus, as they are

  // Simulations run beside that of the settings, see scan.h; empty: none.
  std::vector<std::int32_t> scan_tolerance;
  std::vector<double> scan_uncollected;

  std::optional<std::uint32_t> seed;  ///< nothing said: see DefaultSeed
  unsigned threads = 0;               ///< 0: as many as cores; results never depend on it

  RandomSource random = RandomSource::kDefault;
  SubsetRandoms subset_randoms = SubsetRandoms::kOwn;

  /// A subset of loci ends before all iterations when the standard error of the probability that
  /// any allocation is correct is below this; nothing said: it never does. See IterationsSuffice.
  std::optional<double> until_error;

  bool may_replace_other_flow = false;   ///< as in AllocationSettings; in no run record
  KeptWork kept_work = KeptWork::kAnew;  ///< the same

  /// Whether the working folder keeps the names of the loci, as the windows offer them next time. A
  /// run that repeats the record of somebody else leaves it alone.
  bool saves_loci = true;

  std::span<const ParentalSet> Sets() const {
    return std::span(sets).first(flow == Flow::kSexed ? 2 : 1);
  }

  friend bool operator==(const SimulationSettings&, const SimulationSettings&) = default;
};

/// What is kept: as told; else parents and pseudo-offspring in the non-sexed flow, nothing in the
/// sexed one.
KeptFiles KeptFilesOf(const SimulationSettings& settings);

// The headings of the help under which the options of parents stand.
inline constexpr std::string_view kNonSexedParentsGroup = "Parents, non-sexed";
inline constexpr std::string_view kSexedParentsGroup = "Parents, sexed";

/// The declarations of all settings, in simulation_settings.cpp.
SettingTable<SimulationSettings> SimulationSettingTable();

/// What the windows show before anything is typed.
SimulationSettings FirstShownSimulation(Flow flow);

}  // namespace kaldo
