// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_input.h"

#include <algorithm>

#include <fmt/format.h>

#include "allocation/input_warnings.h"
#include "allocation/offspring_knowledge.h"
#include "genotypes/genotype_reader.h"
#include "genotypes/record_checks.h"
#include "method/cumulative_sequence.h"
#include "method/undefined_parents.h"

namespace kaldo {

namespace {

/// The positions of the loci in the cumulative sequence, or nothing without one.
std::optional<std::vector<std::int32_t>> SequenceOf(const AllocationSettings& settings,
                                                    std::size_t number_of_loci) {
  if (settings.sequence && settings.sequence->empty()) {
    return FileOrderSequence(number_of_loci);
  }
  return settings.sequence;
}

std::optional<Problem> ChooseLoci(const AllocationSettings& settings, AllocationInput& input) {
  if (settings.loci_in_use) {
    if (auto problem = input.loci.Use(*settings.loci_in_use)) {
      return problem;
    }
  }
  const auto in_use = input.loci.LociInUse();
  const auto sequence = SequenceOf(settings, input.loci.Count());
  if (!sequence) {
    input.combinations = {in_use};
    return std::nullopt;
  }
  if (auto problem = CheckSequence(*sequence, input.loci.Count())) {
    return problem;
  }
  const auto order = OrderOfEntry(in_use, *sequence);
  for (std::size_t k = 1; k <= order.size(); ++k) {
    input.combinations.emplace_back(order.begin(), order.begin() + static_cast<std::ptrdiff_t>(k));
  }
  return std::nullopt;
}

void FillTable(const AllocationFiles& files, AllocationInput& input) {
  input.table = GenotypeTable(input.loci.Count());
  std::vector<SlotRange> ranges;
  for (const AllocationFile& file : files.genotypes) {
    ranges.push_back(AppendIndividuals(file.tokens, {input.loci.Count(), file.SeparatorsHere()},
                                       input.loci, input.table));
  }
  input.first_parents = ranges.front();
  input.offspring = ranges.back();
  input.second_parents = {input.first_parents.end, input.offspring.begin};
}

Problem TooManyAllelesProblem(const AllocationFiles& files, const AllocationInput& input,
                              TooManyAlleles at) {
  const std::uint32_t slot = at.slot.Value();
  const bool in_first = slot < input.first_parents.end;
  const bool in_offspring = slot >= input.offspring.begin;
  const SlotRange range = in_first       ? input.first_parents
                          : in_offspring ? input.offspring
                                         : input.second_parents;
  const AllocationFile& file = in_first       ? files.genotypes.front()
                               : in_offspring ? files.genotypes.back()
                                              : files.genotypes[1];
  const std::uint32_t record = slot - range.begin + 1;
  RecordCursor cursor(file.tokens.Tokens(), {input.loci.Count(), file.SeparatorsHere()});
  while (cursor.Record() < record) {
    cursor.Next();
  }
  return {.kind = ProblemKind::kTooManyAlleles,
          .subject = fmt::format("{}", kMaxAlleles),
          .file = file.tokens.Path(),
          .line = cursor.Name().line,
          .record = record,
          .individual = std::string(input.table.Name(at.slot).Text()),
          .locus = input.loci.Name(at.locus),
          .found =
              "this individual brings the first size too many, parents and offspring "
              "together"};
}

}  // namespace

std::size_t AllocationInput::NumberOfParents() const {
  std::size_t parents = 0;
  for (const CandidateGroup& group : groups) {
    parents += group.first.Size();
    parents += group.second == group.first ? 0 : group.second.Size();
  }
  return parents;
}

std::size_t AllocationInput::NumberOfMissingGenotypes() const {
  std::size_t missing = 0;
  for (const LocusIndex locus : loci.LociInUse()) {
    const auto genotypes = table.Locus(locus).subspan(offspring.begin, offspring.Size());
    missing += static_cast<std::size_t>(
        std::count_if(genotypes.begin(), genotypes.end(),
                      [](const LocusGenotype& genotype) { return genotype.IsMissing(); }));
  }
  return missing;
}

tl::expected<AllocationInput, Problem> LoadAllocationInput(const AllocationSettings& settings) {
  DiskFiles disk;
  return LoadAllocationInput(settings, disk);
}

tl::expected<AllocationInput, Problem> LoadAllocationInput(const AllocationSettings& settings,
                                                           FileSource& source) {
  const auto files = OpenAllocationFiles(settings, OpenAnew(source));
  if (!files) {
    return tl::unexpected(files.error());
  }
  auto input = LoadIndividuals(settings, *files);
  if (!input) {
    return input;
  }
  if (auto problem = ApplyChoices(settings, *files, *input)) {
    return tl::unexpected(std::move(*problem));
  }
  return input;
}

tl::expected<AllocationInput, Problem> LoadGenotypes(const AllocationSettings& settings,
                                                     const AllocationFiles& files) {
  if (auto problem = ValidateTolerance(settings.tolerance)) {
    return tl::unexpected(std::move(*problem));
  }
  AllocationInput input;
  input.loci = LociList(files.loci.tokens);
  if (auto problem = CheckAllocationFiles(files, input.loci)) {
    return tl::unexpected(std::move(*problem));
  }
  if (auto problem = CheckLoci(files.loci.tokens)) {
    return tl::unexpected(std::move(*problem));
  }
  const AllocationFile& first_parents = files.genotypes.front();
  input.digits_per_field =
      DigitsPerField(first_parents.tokens, {input.loci.Count(), first_parents.SeparatorsHere()});
  if (auto problem = CheckAllocationRecords(files, input.loci, input.digits_per_field)) {
    return tl::unexpected(std::move(*problem));
  }
  FillTable(files, input);
  input.groups = FormGroups(settings.flow, input.table, input.first_parents, input.second_parents);
  input.files = files.Recorded();
  return input;
}

tl::expected<AllocationInput, Problem> LoadIndividuals(const AllocationSettings& settings,
                                                       const AllocationFiles& files) {
  auto input = LoadGenotypes(settings, files);
  if (input) {
    if (auto problem = ReadAllowedPairs(settings.flow, files, *input)) {
      return tl::unexpected(std::move(*problem));
    }
  }
  return input;
}

std::optional<Problem> CheckChoices(const AllocationSettings& settings, AllocationInput& input) {
  if (auto problem = ValidateForAllocation(settings.error_model)) {
    return problem;
  }
  return ChooseLoci(settings, input);
}

std::optional<Problem> ApplyChoices(const AllocationSettings& settings,
                                    const AllocationFiles& files, AllocationInput& input) {
  if (auto problem = CheckChoices(settings, input)) {
    return problem;
  }
  auto catalogues = CatalogueAlleles(input.table, input.loci);
  if (!catalogues) {
    return TooManyAllelesProblem(files, input, catalogues.error());
  }
  input.catalogues = std::move(*catalogues);
  if (settings.allow_undefined_parents) {
    for (const LocusIndex locus : input.loci.LociInUse()) {
      IndexUndefinedParents(input.table.Locus(locus).first(input.Parents().Size()),
                            input.catalogues[locus.Value()].Sizes().size());
    }
  }
  input.warnings = InputWarnings(settings, files, input);
  return std::nullopt;
}

}  // namespace kaldo
