// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_files.h"

#include <fmt/format.h>

#include "genotypes/capacities.h"
#include "genotypes/file_wide_checks.h"
#include "genotypes/record_checks.h"

namespace kaldo {

namespace {

constexpr AllocationFileRole kParents{
    &AllocationSettings::parents_file,
    "collected parents",
    "Parent file name is missing!",
    "Some parental loci are represented with an odd number of digits!",
    "Parental loci should not contain undefined alleles i.e. represented by a string of 0s!",
    true};

constexpr AllocationFileRole kMales{
    &AllocationSettings::males_file,
    "collected males",
    "Male parent file name is missing!",
    "Some male parental loci are represented with an odd number of digits!",
    "Male parental loci should not contain undefined alleles i.e. represented by a string of 0s!",
    true};

constexpr AllocationFileRole kFemales{
    &AllocationSettings::females_file,
    "collected females",
    "Female parent file name is missing!",
    "Some female parental loci are represented with an odd number of digits!",
    "Female parental loci should not contain undefined alleles i.e. represented by a string of 0s!",
    true};

constexpr AllocationFileRole kOffspring{
    &AllocationSettings::offspring_file,
    "offspring",
    "Offspring file name is missing!",
    "Some offspring loci are represented with an odd number of digits!",
    "Offspring loci should contain totally defined alleles(no string of 0s) or totally undefined "
    "alleles (two strings of 0s)!",
    false};

constexpr AllocationFileRole kLoci{&AllocationSettings::loci_file,
                                   "names of loci",
                                   "Names of loci file name is missing!",
                                   {},
                                   {},
                                   false};

std::vector<AllocationFileRole> GenotypeRoles(Flow flow) {
  if (flow == Flow::kSexed) {
    return {kMales, kFemales, kOffspring};
  }
  return {kParents, kOffspring};
}

RecordLayout LayoutOf(const AllocationFile& file, const LociList& loci) {
  return {loci.Count(), file.SeparatorsHere()};
}

Problem ProblemWith(const TokenFile& file, std::string sentence, std::string found) {
  Problem problem;
  problem.sentence = std::move(sentence);
  problem.file = file.Path();
  problem.found = std::move(found);
  return problem;
}

/// Males of one group can only meet females of the group of the same number.
std::optional<Problem> CheckEqualSeparators(const AllocationFiles& files, const LociList& loci) {
  const AllocationFile& males = files.genotypes[0];
  const AllocationFile& females = files.genotypes[1];
  const auto in_males = CountTokens(males.tokens.Tokens(), LayoutOf(males, loci)).separators;
  const auto in_females = CountTokens(females.tokens.Tokens(), LayoutOf(females, loci)).separators;
  if (in_males == in_females) {
    return std::nullopt;
  }
  Problem problem = ProblemWith(
      females.tokens, "The male and the female file hold different numbers of separators!",
      fmt::format("{} separators here, {} in {}; group k of the males meets group k of the females",
                  in_females, in_males, males.tokens.Path()));
  problem.silent_in_windows = true;
  return problem;
}

std::optional<Problem> CheckNotEmpty(const AllocationFile& file, const LociList& loci) {
  if (CountIndividuals(file.tokens, LayoutOf(file, loci)) > 0) {
    return std::nullopt;
  }
  return ProblemWith(file.tokens,
                     fmt::format("The file of {} holds no individual!", file.role.name),
                     file.tokens.Tokens().empty() ? "the file is empty" : "");
}

/// Parents share one table, whatever files they come from; so do the offspring.
std::optional<Problem> CheckCapacity(const AllocationFiles& files, const LociList& loci) {
  std::size_t parents = 0;
  for (const AllocationFile& file : files.genotypes) {
    const std::size_t records = CountTokens(file.tokens.Tokens(), LayoutOf(file, loci)).records;
    parents += file.role.holds_parents ? records : 0;
    const std::size_t in_table = file.role.holds_parents ? parents : records;
    if (in_table > kMaxIndividuals) {
      return ProblemWith(file.tokens, fmt::format("More than {} individuals!", kMaxIndividuals),
                         fmt::format("{} records of {}, separators included", in_table,
                                     file.role.holds_parents ? "parents" : "offspring"));
    }
  }
  return std::nullopt;
}

}  // namespace

tl::expected<AllocationFiles, Problem> OpenAllocationFiles(const AllocationSettings& settings) {
  DiskFiles disk;
  return OpenAllocationFiles(settings, disk);
}

tl::expected<AllocationFiles, Problem> OpenAllocationFiles(const AllocationSettings& settings,
                                                           FileSource& source) {
  std::vector<AllocationFileRole> roles = GenotypeRoles(settings.flow);
  roles.push_back(kLoci);
  for (const AllocationFileRole& role : roles) {
    if ((settings.*role.path).empty()) {
      Problem problem;
      problem.sentence = role.missing_sentence;
      return tl::unexpected(std::move(problem));
    }
  }
  AllocationFiles files;
  for (const AllocationFileRole& role : roles) {
    auto tokens = TokenFile::Read(settings.*role.path, source);
    if (!tokens) {
      return tl::unexpected(std::move(tokens.error()));
    }
    files.genotypes.push_back({role, std::move(*tokens)});
  }
  files.loci = std::move(files.genotypes.back());
  files.genotypes.pop_back();
  return files;
}

std::optional<Problem> CheckAllocationFiles(const AllocationFiles& files, const LociList& loci) {
  std::optional<Problem> problem;
  if (files.genotypes.size() == 3) {
    problem = CheckEqualSeparators(files, loci);
  }
  std::vector<FileWideCheck> checks;
  for (const AllocationFile& file : files.genotypes) {
    checks.push_back(
        {&file.tokens, file.SeparatorsHere(),
         file.role.holds_parents ? UndefinedAlleles::kNone : UndefinedAlleles::kWholeLoci,
         file.role.odd_digits_sentence, file.role.undefined_sentence, !file.role.holds_parents});
  }
  return CheckFilesWide(checks, loci, std::move(problem));
}

std::optional<Problem> CheckAllocationRecords(const AllocationFiles& files, const LociList& loci,
                                              std::size_t digits_per_field) {
  for (const AllocationFile& file : files.genotypes) {
    if (auto problem = CheckNotEmpty(file, loci)) {
      return problem;
    }
    if (auto problem = CheckRecords(file.tokens, LayoutOf(file, loci), loci, digits_per_field)) {
      return problem;
    }
  }
  return CheckCapacity(files, loci);
}

}  // namespace kaldo
