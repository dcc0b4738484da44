// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_input.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>

#include <fmt/format.h>

#include "genotypes/genotype_reader.h"
#include "genotypes/record_checks.h"
#include "genotypes/record_warnings.h"
#include "method/cumulative_sequence.h"
#include "simulation/allocation_model.h"
#include "simulation/figures/class_sizes.h"
#include "simulation/figures/class_weights.h"
#include "simulation/flows/simulation_design.h"
#include "simulation/random_warnings.h"
#include "simulation/reports/simulation_texts.h"
#include "simulation/scan.h"
#include "simulation/simulation_checks.h"

namespace kaldo {

namespace {

/// The tests of the file screens, then the stricter ones of each record.
std::optional<Problem> CheckFiles(const SimulationFiles& files, SimulationInput& input) {
  input.loci = LociList(files.loci);
  if (auto problem = CheckSimulationFiles(files, input.loci)) {
    return problem;
  }
  if (auto problem = CheckLoci(files.loci)) {
    return problem;
  }
  input.digits_per_field =
      DigitsPerField(files.groups.front().tokens, {input.loci.Count(), Separators::kNone});
  return CheckSimulationRecords(files, input.loci, input.digits_per_field);
}

/// The simulated parents of a group: a fraction of a parent is one more.
std::uint32_t SimulatedParents(const SimulationSettings& settings, const GroupDesign& group) {
  const ParentalSet& set = settings.sets.at(group.set);
  if (!group.collected) {
    return static_cast<std::uint32_t>(std::ceil(set.uncollected));
  }
  return std::max(static_cast<std::uint32_t>(set.pseudo_collected),
                  DesignOf(settings.flow).fewest_pseudo_collected);
}

/// Tells once what a locus of a sample lacks, though the file may serve for several groups.
void WarnOfUndefined(const TokenFile& file, const std::string& locus, std::size_t undefined,
                     std::size_t individuals, std::vector<Warning>& warnings) {
  Warning warning{.kind = WarningKind::kUndefinedInSample,
                  .file = file.Path(),
                  .found = fmt::format("locus {}, {} of {} individuals undefined", Escaped(locus),
                                       undefined, individuals)};
  const bool is_told =
      std::any_of(warnings.begin(), warnings.end(), [&warning](const Warning& earlier) {
        return earlier.file == warning.file && earlier.found == warning.found;
      });
  if (!is_told) {
    warnings.push_back(std::move(warning));
  }
}

tl::expected<RepresentativeSample, Problem> LoadSample(const GroupFile& file, const LociList& loci,
                                                       UndefinedInSample undefined_alleles,
                                                       std::vector<Warning>& warnings) {
  GenotypeTable table(loci.Count());
  AppendIndividuals(file.tokens, {loci.Count(), Separators::kNone}, loci, table);
  std::vector<AlleleCatalogue> catalogues(loci.Count());
  std::vector<std::size_t> left_out(loci.Count());
  for (const LocusIndex locus : loci.LociInUse()) {
    auto catalogue = AlleleCatalogue::Build(table.Locus(locus));
    if (!catalogue) {
      return tl::unexpected(Problem{.kind = ProblemKind::kTooManyAlleles,
                                    .subject = fmt::format("{}", kMaxAlleles),
                                    .file = file.tokens.Path(),
                                    .locus = loci.Name(locus)});
    }
    if (catalogue->Sizes().empty()) {
      return tl::unexpected(Problem{.kind = ProblemKind::kNoAlleleInSample,
                                    .file = file.tokens.Path(),
                                    .locus = loci.Name(locus),
                                    .found = "nothing can be drawn from it; leave the locus out"});
    }
    catalogues[locus.Value()] = *catalogue;
    const auto genotypes = table.Locus(locus);
    const auto undefined = static_cast<std::size_t>(std::count_if(
        genotypes.begin(), genotypes.end(), [](const auto& one) { return one.IsMissing(); }));
    if (undefined_alleles == UndefinedInSample::kIgnore) {
      left_out[locus.Value()] = 2 * undefined;
    } else if (undefined > 0) {
      WarnOfUndefined(file.tokens, loci.Name(locus), undefined, genotypes.size(), warnings);
    }
  }
  return RepresentativeSample(std::move(catalogues), table.NumberOfIndividuals(), left_out);
}

/// Loads the groups in the order of the parent table.
std::optional<Problem> LoadGroups(const SimulationSettings& settings, const SimulationFiles& files,
                                  SimulationInput& input) {
  const SimulationDesign& design = DesignOf(settings.flow);
  input.collected = GenotypeTable(input.loci.Count());
  std::uint32_t begin = 0;
  for (std::size_t k = 0; k < design.groups.size(); ++k) {
    const GroupFile& file = files.groups[k];
    ParentalGroup group;
    if (file.holds_parents) {
      group.slots = AppendIndividuals(file.tokens, {input.loci.Count(), Separators::kNone},
                                      input.loci, input.collected);
      begin = group.slots.end;
    } else if (file.IsLeftOut()) {
      group.slots = {begin, begin};
    } else {
      auto sample = LoadSample(file, input.loci, settings.undefined_in_sample, input.warnings);
      if (!sample) {
        return std::move(sample.error());
      }
      group.sample = std::move(*sample);
      group.slots = {begin, begin + SimulatedParents(settings, design.groups[k])};
      begin = group.slots.end;
    }
    if (design.groups[k].collected) {
      const ParentalSet& set = settings.sets.at(design.groups[k].set);
      input.collected_numbers.push_back(file.holds_parents
                                            ? static_cast<double>(group.slots.Size())
                                            : static_cast<double>(set.pseudo_collected));
      input.candidates = {0, group.slots.end};
    }
    input.groups.push_back(std::move(group));
  }
  input.files = files.Recorded();
  if (files.undefined_like) {
    input.undefined_shares = UndefinedShares(files.undefined_like->tokens, LociList(files.loci));
  } else if (settings.undefined > 0) {
    input.undefined_shares.assign(input.loci.Count(), settings.undefined);
  }
  return std::nullopt;
}

/// What is odd about collected parents that are read from files, and about the choices. Samples are
/// drawn from: who is in them does not matter.
std::vector<Warning> InputWarnings(const SimulationSettings& settings, const SimulationFiles& files,
                                   const SimulationInput& input) {
  RecordWarnings records(input.collected, input.loci);
  for (const GroupFile& file : files.groups) {
    if (file.holds_parents) {
      records.AddFile(file.tokens, {input.loci.Count(), Separators::kNone});
    }
  }
  const SlotRange collected{0, static_cast<std::uint32_t>(input.collected.NumberOfIndividuals())};
  records.SearchNamesTwice(collected);
  records.SearchSameGenotypes(collected);
  auto warnings = records.Take();
  if (auto warning = WarnOfNegative(settings.error_model)) {
    warnings.push_back(std::move(*warning));
  } else if (auto in_allocation = WarnOfNegative(AllocationModelOf(settings))) {
    warnings.push_back(std::move(*in_allocation));
  }
  const auto of_randoms = WarnOfRandomNumbers(settings, input);
  warnings.insert(warnings.end(), of_randoms.begin(), of_randoms.end());
  return warnings;
}

/// The parents of an iteration share one catalogue, which must hold what any of them may carry.
std::optional<Problem> CheckAlleles(const SimulationInput& input) {
  for (const LocusIndex locus : input.loci.LociInUse()) {
    std::set<AlleleSize> sizes;
    for (const LocusGenotype& genotype : input.collected.Locus(locus)) {
      sizes.insert({genotype.allele1, genotype.allele2});
    }
    sizes.erase(kUndefinedAllele);
    if (sizes.empty() && input.collected.NumberOfIndividuals() > 0) {
      return Problem{.kind = ProblemKind::kNoAlleleInSample,
                     .locus = input.loci.Name(locus),
                     .found = "no collected parent is typed there; leave the locus out"};
    }
    for (const ParentalGroup& group : input.groups) {
      if (group.sample) {
        sizes.insert(group.sample->Sizes(locus).begin(), group.sample->Sizes(locus).end());
      }
    }
    if (sizes.size() > kMaxAlleles) {
      return Problem{.kind = ProblemKind::kTooManyAlleles,
                     .subject = fmt::format("{}", kMaxAlleles),
                     .locus = input.loci.Name(locus),
                     .found = fmt::format("the files together have {} sizes there", sizes.size())};
    }
  }
  return std::nullopt;
}

/// A class with pseudo-offspring needs a true parent in each of its groups, and two if both come
/// from one group.
std::optional<Problem> CheckGroupSizes(Flow flow, const SimulationInput& input) {
  const SimulationDesign& design = DesignOf(flow);
  if (input.NumberOfParents() > kMaxIndividuals) {
    return Problem{.kind = ProblemKind::kTooManyIndividuals,
                   .subject = fmt::format("{}", kMaxIndividuals),
                   .found = fmt::format("{} parents in an iteration", input.NumberOfParents())};
  }
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    const OriginClass& origin = design.classes[k];
    const std::size_t first = input.groups[origin.first_group].slots.Size();
    const std::size_t second = input.groups[origin.second_group].slots.Size();
    const std::size_t needed = origin.SameGroup() ? 2 : 1;
    if (input.class_sizes[k] > 0 && (first < needed || second < needed)) {
      return Problem{.kind = ProblemKind::kTooFewParents,
                     .found = fmt::format(
                         "{} pseudo-offspring of origin {} need {} true parents, of which {} "
                         "and {} are there",
                         input.class_sizes[k], TextsOf(flow).origins[k].label,
                         origin.SameGroup() ? "two different" : "one and one", first, second)};
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<Problem> CheckChoices(const SimulationSettings& settings, SimulationInput& input) {
  if (auto problem = ValidateForSimulation(settings.error_model)) {
    return problem;
  }
  if (auto problem = CheckAllocationModel(settings)) {
    return problem;
  }
  if (settings.loci_in_use) {
    if (auto problem = input.loci.Use(*settings.loci_in_use)) {
      return problem;
    }
  }
  if (!settings.sequence.empty()) {
    if (auto problem = CheckSequence(settings.sequence, input.loci.Count())) {
      return problem;
    }
  }
  auto subsets = LocusSubsets::Choose(settings, input.loci);
  if (!subsets) {
    return std::move(subsets.error());
  }
  input.subsets = std::move(*subsets);
  return std::nullopt;
}

std::optional<Problem> DrawUncollected(const SimulationSettings& settings, SimulationInput& input) {
  const SimulationDesign& design = DesignOf(settings.flow);
  std::uint32_t begin = input.candidates.end;
  for (std::size_t k = 0; k < design.groups.size(); ++k) {
    if (design.groups[k].collected) {
      continue;
    }
    ParentalGroup& group = input.groups[k];
    group.slots = {begin, begin + SimulatedParents(settings, design.groups[k])};
    begin = group.slots.end;
  }
  input.collected_shares = CollectedShares(settings, input.collected_numbers);
  input.weights = ClassWeights(settings, input.collected_numbers);
  input.class_sizes = ClassSizes(settings, input.collected_numbers);
  return CheckGroupSizes(settings.flow, input);
}

std::uint32_t SimulationInput::OffspringPerIteration() const {
  return static_cast<std::uint32_t>(
      std::accumulate(class_sizes.begin(), class_sizes.end(), std::int32_t{0}));
}

tl::expected<SimulationInput, Problem> LoadSimulationInput(const SimulationSettings& settings) {
  DiskFiles disk;
  return LoadSimulationInput(settings, disk);
}

tl::expected<SimulationInput, Problem> LoadSimulationInput(const SimulationSettings& settings,
                                                           FileSource& source) {
  return OpenSimulationFiles(settings, OpenAnew(source))
      .and_then([&](const SimulationFiles& files) { return LoadSimulationInput(settings, files); });
}

tl::expected<SimulationInput, Problem> LoadSimulationInput(const SimulationSettings& settings,
                                                           const SimulationFiles& files) {
  if (auto problem = CheckSimulationNumbers(settings)) {
    return tl::unexpected(std::move(*problem));
  }
  SimulationInput input;
  if (auto problem = CheckFiles(files, input)) {
    return tl::unexpected(std::move(*problem));
  }
  if (auto problem = CheckChoices(settings, input)) {
    return tl::unexpected(std::move(*problem));
  }
  if (auto problem = LoadGroups(settings, files, input)) {
    return tl::unexpected(std::move(*problem));
  }
  if (auto problem = CheckAlleles(input)) {
    return tl::unexpected(std::move(*problem));
  }
  if (auto problem = DrawUncollected(settings, input)) {
    return tl::unexpected(std::move(*problem));
  }
  if (auto problem = CheckScan(settings, input)) {
    return tl::unexpected(std::move(*problem));
  }
  auto warnings = InputWarnings(settings, files, input);
  warnings.insert(warnings.end(), input.warnings.begin(), input.warnings.end());
  input.warnings = std::move(warnings);
  return input;
}

}  // namespace kaldo
