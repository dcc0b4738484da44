// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_files.h"

#include <algorithm>

#include <fmt/format.h>

#include "genotypes/all_faults.h"
#include "genotypes/capacities.h"
#include "genotypes/file_wide_checks.h"
#include "genotypes/record_checks.h"
#include "simulation/flows/simulation_design.h"

namespace kaldo {

namespace {

/// What is known of a group's file before it is opened.
struct GroupPath {
  const std::string* path = nullptr;
  ProblemKind no_name = ProblemKind::kNoSampleFile;
  std::string role;
  bool holds_parents = false;
  ProblemKind half_defined = ProblemKind::kHalfDefinedInSample;
  bool may_be_left_out = false;

  bool IsLeftOut() const { return may_be_left_out && path->empty(); }
};

std::string RoleOf(Flow flow, const GroupDesign& group, bool holds_parents) {
  const std::string_view who = flow == Flow::kNonSexed ? "parents"
                               : group.set == 0        ? "males"
                                                       : "females";
  if (holds_parents) {
    return fmt::format("collected {}", who);
  }
  return fmt::format("sample of {} {}", group.collected ? "pseudo-collected" : "uncollected", who);
}

GroupPath PathOf(const SimulationSettings& settings, const GroupDesign& group) {
  const ParentalSet& set = settings.sets.at(group.set);
  GroupPath path;
  path.holds_parents = group.collected && settings.procedure == Procedure::kParental;
  path.path = !group.collected     ? &set.uncollected_sample
              : path.holds_parents ? &set.collected_file
                                   : &set.pseudo_collected_sample;
  path.no_name = path.holds_parents ? ProblemKind::kNoParentsFile : ProblemKind::kNoSampleFile;
  path.role = RoleOf(settings.flow, group, path.holds_parents);
  path.half_defined = settings.flow == Flow::kNonSexed ? ProblemKind::kHalfDefinedInSample
                      : group.set == 0                 ? ProblemKind::kHalfDefinedInMaleSample
                                                       : ProblemKind::kHalfDefinedInFemaleSample;
  const auto& scanned = settings.scan_uncollected;
  path.may_be_left_out =
      !group.collected && set.uncollected == 0 &&
      std::all_of(scanned.begin(), scanned.end(), [](double number) { return number == 0; });
  return path;
}

/// Real offspring whose undefined loci those of the simulation are like.
GroupPath UndefinedLike(const SimulationSettings& settings) {
  GroupPath path;
  path.path = &settings.undefined_like;
  path.role = "offspring with undefined loci";
  path.half_defined = ProblemKind::kHalfDefinedInOffspring;
  path.may_be_left_out = true;
  return path;
}

GroupFile GroupFileOf(GroupPath path, TokenFile tokens, const SimulationSettings& settings) {
  return {
      std::move(tokens), std::move(path.role), path.holds_parents, path.half_defined,
      settings.allow_undefined_parents ? UndefinedAlleles::kWholeLoci : UndefinedAlleles::kNone};
}

/// One allele of two is told first in the sexed flow, also for collected parents; then, for
/// collected parents, any undefined allele that they may not have.
std::vector<FileWideCheck> WideChecksOf(const GroupFile& group, bool tells_halves) {
  std::vector<FileWideCheck> checks;
  if (!group.holds_parents || tells_halves) {
    checks.push_back({&group.tokens, Separators::kNone, UndefinedAlleles::kWholeLoci,
                      ProblemKind::kOddDigitsInParents, group.half_defined});
  }
  if (group.holds_parents) {
    checks.push_back({&group.tokens, Separators::kNone, group.in_parents,
                      ProblemKind::kOddDigitsInParents, ProblemKind::kUndefinedInParents});
  }
  return checks;
}

std::optional<Problem> CheckNumber(const GroupFile& group, RecordLayout layout) {
  const std::size_t individuals = CountIndividuals(group.tokens, layout);
  if (individuals > 0 && individuals <= kMaxIndividuals) {
    return std::nullopt;
  }
  const bool none = individuals == 0;
  return Problem{.kind = none ? ProblemKind::kNoIndividual : ProblemKind::kTooManyIndividuals,
                 .subject = none ? group.role : fmt::format("{}", kMaxIndividuals),
                 .file = group.tokens.Path(),
                 .found = fmt::format("{} records", individuals)};
}

std::optional<Problem> CheckNoSeparators(const GroupFile& group) {
  const auto tokens = group.tokens.Tokens();
  const auto separator = std::find_if(
      tokens.begin(), tokens.end(), [](const Token& token) { return IsSeparatorName(token.text); });
  if (separator == tokens.end()) {
    return std::nullopt;
  }
  return Problem{.kind = ProblemKind::kSeparatorInSimulation,
                 .file = group.tokens.Path(),
                 .line = separator->line,
                 .found = "simulated parents form one group; leave the \"*\" out"};
}

}  // namespace

std::vector<const GroupFile*> SimulationFiles::Genotypes() const {
  std::vector<const GroupFile*> genotypes;
  for (const GroupFile& group : groups) {
    if (!group.IsLeftOut()) {
      genotypes.push_back(&group);
    }
  }
  if (undefined_like) {
    genotypes.push_back(&*undefined_like);
  }
  return genotypes;
}

std::vector<RecordedInput> SimulationFiles::Recorded() const {
  std::vector<RecordedInput> recorded;
  for (const GroupFile* group : Genotypes()) {
    recorded.push_back({group->role, group->tokens.Path(), group->tokens.Digest()});
  }
  recorded.push_back({"names of loci", loci.Path(), loci.Digest()});
  return recorded;
}

tl::expected<TokenFile, Problem> OpenSimulationLoci(const SimulationSettings& settings,
                                                    const FileOpener& open) {
  if (settings.loci_file.empty()) {
    return tl::unexpected(Problem{.kind = ProblemKind::kNoLociFile});
  }
  return open(settings.loci_file, kMaxLociBytes);
}

tl::expected<SimulationFiles, Problem> OpenSimulationFiles(const SimulationSettings& settings,
                                                           const FileOpener& open) {
  if (settings.loci_file.empty()) {
    return tl::unexpected(Problem{.kind = ProblemKind::kNoLociFile});
  }
  std::vector<GroupPath> paths;
  for (const GroupDesign& group : DesignOf(settings.flow).groups) {
    paths.push_back(PathOf(settings, group));
    if (paths.back().path->empty() && !paths.back().IsLeftOut()) {
      return tl::unexpected(Problem{.kind = paths.back().no_name});
    }
  }
  SimulationFiles files;
  auto loci = open(settings.loci_file, kMaxLociBytes);
  if (!loci) {
    return tl::unexpected(std::move(loci.error()));
  }
  files.loci = std::move(*loci);
  for (GroupPath& path : paths) {
    auto tokens = path.IsLeftOut() ? TokenFile() : open(*path.path, kMaxInputBytes);
    if (!tokens) {
      return tl::unexpected(std::move(tokens.error()));
    }
    files.groups.push_back(GroupFileOf(std::move(path), std::move(*tokens), settings));
  }
  if (!settings.undefined_like.empty()) {
    auto tokens = open(settings.undefined_like, kMaxInputBytes);
    if (!tokens) {
      return tl::unexpected(std::move(tokens.error()));
    }
    files.undefined_like = GroupFileOf(UndefinedLike(settings), std::move(*tokens), settings);
  }
  return files;
}

OpenedSimulationFiles OpenWhatIsThere(const SimulationSettings& settings, const FileOpener& open,
                                      AlikeGroups<Problem>& faults) {
  OpenedSimulationFiles files;
  if (auto loci = OpenSimulationLoci(settings, open)) {
    files.loci = std::move(*loci);
  } else {
    faults.Add(std::move(loci.error()));
  }
  std::vector<GroupPath> paths;
  const auto& groups = DesignOf(settings.flow).groups;
  paths.reserve(groups.size() + 1);
  for (const GroupDesign& group : groups) {
    paths.push_back(PathOf(settings, group));
  }
  paths.push_back(UndefinedLike(settings));
  for (GroupPath& path : paths) {
    if (path.IsLeftOut()) {
      continue;
    }
    if (path.path->empty()) {
      faults.Add({.kind = path.no_name});
    } else if (auto tokens = open(*path.path, kMaxInputBytes)) {
      files.groups.push_back(GroupFileOf(std::move(path), std::move(*tokens), settings));
    } else {
      faults.Add(std::move(tokens.error()));
    }
  }
  return files;
}

void FindAllFaults(const OpenedSimulationFiles& files, Flow flow, const LociList& loci,
                   AlikeGroups<Problem>& faults) {
  if (files.groups.empty()) {
    return;
  }
  const RecordLayout layout{loci.Count(), Separators::kNone};
  const std::size_t digits = CommonDigitsPerField(files.groups.front().tokens, layout);
  for (const GroupFile& group : files.groups) {
    auto problem = CheckNoSeparators(group);
    if (!problem) {
      problem = CheckNumber(group, layout);
    }
    if (problem) {
      faults.Add(std::move(*problem));
    }
    FindAllFaults({WideChecksOf(group, flow == Flow::kSexed), digits, false}, loci, faults);
  }
}

std::optional<Problem> CheckSimulationFiles(const SimulationFiles& files, const LociList& loci) {
  const bool sexed = files.groups.size() > 2;
  for (const GroupFile* group : files.Genotypes()) {
    for (const FileWideCheck& check : WideChecksOf(*group, sexed)) {
      if (auto problem = CheckFileWide(check, loci)) {
        return problem;
      }
    }
  }
  return std::nullopt;
}

std::optional<Problem> CheckSimulationRecords(const SimulationFiles& files, const LociList& loci,
                                              std::size_t digits_per_field) {
  const RecordLayout layout{loci.Count(), Separators::kNone};
  for (const GroupFile* group : files.Genotypes()) {
    if (auto problem = CheckNoSeparators(*group)) {
      return problem;
    }
    if (auto problem = CheckNumber(*group, layout)) {
      return problem;
    }
    if (auto problem = CheckRecords(group->tokens, layout, loci, digits_per_field)) {
      return problem;
    }
  }
  return std::nullopt;
}

}  // namespace kaldo
