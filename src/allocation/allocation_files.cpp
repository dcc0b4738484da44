// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_files.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "base/counted_text.h"
#include "genotypes/all_faults.h"
#include "genotypes/capacities.h"
#include "genotypes/file_wide_checks.h"
#include "genotypes/record_checks.h"

namespace kaldo {

namespace {

constexpr AllocationFileRole kParents{.path = &AllocationSettings::parents_file,
                                      .name = "collected parents",
                                      .no_name = ProblemKind::kNoParentsFile,
                                      .odd_digits = ProblemKind::kOddDigitsInParents,
                                      .undefined = ProblemKind::kUndefinedInParents,
                                      .holds_parents = true};

constexpr AllocationFileRole kMales{.path = &AllocationSettings::males_file,
                                    .name = "collected males",
                                    .no_name = ProblemKind::kNoMalesFile,
                                    .odd_digits = ProblemKind::kOddDigitsInMales,
                                    .undefined = ProblemKind::kUndefinedInMales,
                                    .holds_parents = true};

constexpr AllocationFileRole kFemales{.path = &AllocationSettings::females_file,
                                      .name = "collected females",
                                      .no_name = ProblemKind::kNoFemalesFile,
                                      .odd_digits = ProblemKind::kOddDigitsInFemales,
                                      .undefined = ProblemKind::kUndefinedInFemales,
                                      .holds_parents = true};

constexpr AllocationFileRole kOffspring{.path = &AllocationSettings::offspring_file,
                                        .name = "offspring",
                                        .no_name = ProblemKind::kNoOffspringFile,
                                        .odd_digits = ProblemKind::kOddDigitsInOffspring,
                                        .undefined = ProblemKind::kHalfDefinedInOffspring};

constexpr AllocationFileRole kLoci{.path = &AllocationSettings::loci_file,
                                   .name = "names of loci",
                                   .no_name = ProblemKind::kNoLociFile};

constexpr std::array<AllocationFileRole, 3> kKnowledge{{
    {.path = &AllocationSettings::known_mother_file, .name = "known mothers"},
    {.path = &AllocationSettings::candidates_file, .name = "candidates"},
    {.path = &AllocationSettings::offspring_groups_file, .name = "groups of offspring"},
}};

std::vector<AllocationFileRole> GenotypeRoles(Flow flow) {
  if (flow == Flow::kSexed) {
    return {kMales, kFemales, kOffspring};
  }
  return {kParents, kOffspring};
}

RecordLayout LayoutOf(const AllocationFile& file, const LociList& loci) {
  return {loci.Count(), file.SeparatorsHere()};
}

/// Males of one group can only meet females of the group of the same number.
std::optional<Problem> CheckEqualSeparators(std::span<const AllocationFile> files,
                                            const LociList& loci) {
  const AllocationFile& males = files[0];
  const AllocationFile& females = files[1];
  const auto in_males = CountTokens(males.tokens.Tokens(), LayoutOf(males, loci)).separators;
  const auto in_females = CountTokens(females.tokens.Tokens(), LayoutOf(females, loci)).separators;
  if (in_males == in_females) {
    return std::nullopt;
  }
  return Problem{
      .kind = ProblemKind::kSeparatorsDiffer,
      .file = females.tokens.Path(),
      .found = fmt::format("{} here, {} in {}; group k of the males meets group k of the females",
                           Counted(in_females, "separator", "separators"), in_males,
                           males.tokens.Path())};
}

std::optional<Problem> CheckNotEmpty(const AllocationFile& file, const LociList& loci) {
  if (CountIndividuals(file.tokens, LayoutOf(file, loci)) > 0) {
    return std::nullopt;
  }
  return Problem{.kind = ProblemKind::kNoIndividual,
                 .subject = std::string(file.role.name),
                 .file = file.tokens.Path(),
                 .found = file.tokens.Tokens().empty() ? "the file is empty" : ""};
}

std::optional<Problem> CheckParentNames(const AllocationFile& file, const LociList& loci) {
  RecordCursor cursor(file.tokens.Tokens(), LayoutOf(file, loci));
  while (!cursor.AtEnd()) {
    cursor.Next();
    const Token& name = cursor.Name();
    if (auto fault = FaultOfParentName(name.text)) {
      fault->file = file.tokens.Path();
      fault->line = name.line;
      fault->record = cursor.Record();
      fault->individual = name.text;
      return fault;
    }
  }
  return std::nullopt;
}

/// Parents share one table, whatever files they come from; so do the offspring.
std::optional<Problem> CheckCapacity(std::span<const AllocationFile> files, const LociList& loci) {
  std::size_t parents = 0;
  for (const AllocationFile& file : files) {
    const std::size_t records = CountTokens(file.tokens.Tokens(), LayoutOf(file, loci)).records;
    parents += file.role.holds_parents ? records : 0;
    const std::size_t in_table = file.role.holds_parents ? parents : records;
    if (in_table > kMaxIndividuals) {
      return Problem{.kind = ProblemKind::kTooManyIndividuals,
                     .subject = fmt::format("{}", kMaxIndividuals),
                     .file = file.tokens.Path(),
                     .found = fmt::format("{} records of {}, separators included", in_table,
                                          file.role.holds_parents ? "parents" : "offspring")};
    }
  }
  return std::nullopt;
}

std::size_t MostBytes(const AllocationFileRole& role) {
  return role.path == kLoci.path ? kMaxLociBytes : kMaxInputBytes;
}

UndefinedAlleles UndefinedIn(const AllocationFileRole& role, const AllocationSettings& settings) {
  return role.holds_parents && !settings.allow_undefined_parents ? UndefinedAlleles::kNone
                                                                 : UndefinedAlleles::kWholeLoci;
}

FileWideCheck WideCheckOf(const AllocationFile& file) {
  return {&file.tokens,         file.SeparatorsHere(), file.undefined_alleles,
          file.role.odd_digits, file.role.undefined,   !file.role.holds_parents};
}

std::vector<AllocationFileRole> Roles(Flow flow) {
  std::vector<AllocationFileRole> roles = GenotypeRoles(flow);
  roles.push_back(kLoci);
  return roles;
}

}  // namespace

std::vector<RecordedInput> AllocationFiles::Recorded() const {
  std::vector<RecordedInput> recorded;
  const auto add = [&recorded](const AllocationFile& file) {
    recorded.push_back({std::string(file.role.name), file.tokens.Path(), file.tokens.Digest()});
  };
  std::for_each(genotypes.begin(), genotypes.end(), add);
  add(loci);
  std::for_each(knowledge.begin(), knowledge.end(), add);
  return recorded;
}

tl::expected<AllocationFiles, Problem> OpenAllocationFiles(const AllocationSettings& settings,
                                                           const FileOpener& open) {
  const std::vector<AllocationFileRole> roles = Roles(settings.flow);
  for (const AllocationFileRole& role : roles) {
    if ((settings.*role.path).empty()) {
      return tl::unexpected(Problem{.kind = role.no_name});
    }
  }
  AllocationFiles files;
  for (const AllocationFileRole& role : roles) {
    auto tokens = open(settings.*role.path, MostBytes(role));
    if (!tokens) {
      return tl::unexpected(std::move(tokens.error()));
    }
    files.genotypes.push_back({role, std::move(*tokens), UndefinedIn(role, settings)});
  }
  files.loci = std::move(files.genotypes.back());
  files.genotypes.pop_back();
  for (const AllocationFileRole& role : kKnowledge) {
    if ((settings.*role.path).empty()) {
      continue;
    }
    auto tokens = open(settings.*role.path, kMaxInputBytes);
    if (!tokens) {
      return tl::unexpected(std::move(tokens.error()));
    }
    files.knowledge.push_back({role, std::move(*tokens)});
  }
  return files;
}

OpenedAllocationFiles OpenWhatIsThere(const AllocationSettings& settings, const FileOpener& open,
                                      AlikeGroups<Problem>& faults) {
  OpenedAllocationFiles files;
  for (const AllocationFileRole& role : Roles(settings.flow)) {
    const std::string& path = settings.*role.path;
    if (path.empty()) {
      faults.Add({.kind = role.no_name});
      continue;
    }
    auto tokens = open(path, MostBytes(role));
    if (!tokens) {
      faults.Add(std::move(tokens.error()));
    } else if (role.path == kLoci.path) {
      files.loci = {role, std::move(*tokens)};
    } else {
      files.genotypes.push_back({role, std::move(*tokens), UndefinedIn(role, settings)});
    }
  }
  return files;
}

void FindAllFaults(const OpenedAllocationFiles& files, const LociList& loci,
                   AlikeGroups<Problem>& faults) {
  const auto add = [&faults](std::optional<Problem> problem) {
    if (problem) {
      faults.Add(std::move(*problem));
    }
  };
  if (files.genotypes.empty()) {
    return;
  }
  const AllocationFile& first = files.genotypes.front();
  const std::size_t digits = CommonDigitsPerField(first.tokens, LayoutOf(first, loci));
  for (const AllocationFile& file : files.genotypes) {
    if (auto none = CheckNotEmpty(file, loci)) {
      faults.Add(std::move(*none));
    } else {
      FindAllFaults({{WideCheckOf(file)}, digits, file.role.holds_parents}, loci, faults);
    }
  }
  if (files.genotypes.size() == 3) {
    add(CheckEqualSeparators(files.genotypes, loci));
  }
  add(CheckCapacity(files.genotypes, loci));
}

std::optional<Problem> CheckAllocationFiles(const AllocationFiles& files, const LociList& loci) {
  std::optional<Problem> problem;
  if (files.genotypes.size() == 3) {
    problem = CheckEqualSeparators(files.genotypes, loci);
  }
  std::vector<FileWideCheck> checks;
  for (const AllocationFile& file : files.genotypes) {
    checks.push_back(WideCheckOf(file));
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
    if (!file.role.holds_parents) {
      continue;
    }
    if (auto problem = CheckParentNames(file, loci)) {
      return problem;
    }
  }
  return CheckCapacity(files.genotypes, loci);
}

}  // namespace kaldo
