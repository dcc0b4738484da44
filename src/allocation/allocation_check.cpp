// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_check.h"

#include "allocation/allocation_command.h"
#include "allocation/allocation_record.h"
#include "allocation/offspring_knowledge.h"
#include "genotypes/all_faults.h"
#include "genotypes/kept_files.h"

namespace kaldo {

namespace {

/// Tests the choices against the names of the loci, and puts aside what is at fault.
void FindFaultsOfChoices(const LociList& loci, AllocationSettings& settings, FullCheck& check) {
  if (auto problem = ValidateTolerance(settings.tolerance)) {
    check.faults.Add(std::move(*problem));
    settings.tolerance = AllocationSettings{}.tolerance;
  }
  if (loci.Count() == 0) {
    if (auto problem = ValidateForAllocation(settings.error_model)) {
      check.faults.Add(std::move(*problem));
    }
    return;
  }
  LeaveOutUnknownLoci(loci, settings.loci_in_use, check.faults);
  const auto test = [&] {
    AllocationInput only_loci;
    only_loci.loci = loci;
    return CheckChoices(settings, only_loci);
  };
  const auto put_aside = [&](const Problem& problem) {
    if (problem.kind == ProblemKind::kTooManyAlleles) {
      LeaveOut(problem.locus, loci, settings.loci_in_use);
      return true;
    }
    return PutAside(problem, settings);
  };
  FindOneAfterAnother(test, put_aside, check.faults);
}

std::vector<LocusStatistics> StatisticsOf(const AllocationFiles& files, const LociList& loci) {
  std::vector<CheckedFile> checked;
  for (const AllocationFile& file : files.genotypes) {
    checked.push_back({&file.tokens, file.SeparatorsHere()});
  }
  return StatisticsOfLoci(checked, loci);
}

/// Loads the files, which may be sound though choices were not; loci with too many alleles are told
/// one by one and left out. True where all is told that can be, about what is known of offspring.
bool Load(AllocationSettings settings, const FileOpener& open, AllocationCheck& check) {
  const auto files = OpenAllocationFiles(settings, open);
  if (!files) {
    check.faults.Add(files.error());
    return false;
  }
  auto loaded = LoadGenotypes(settings, *files);
  if (!loaded) {
    check.faults.Add(std::move(loaded.error()));
    return false;
  }
  if (auto faults = FindKnowledgeFaults(settings.flow, *files, *loaded); !faults.IsEmpty()) {
    check.faults.AddGroups(std::move(faults));
    return true;
  }
  const LociList all = loaded->loci;
  check.loci = StatisticsOf(*files, all);
  while (auto problem = ApplyChoices(settings, *files, *loaded)) {
    check.faults.Add(*problem);
    if (problem->kind != ProblemKind::kTooManyAlleles) {
      return false;
    }
    LeaveOut(problem->locus, all, settings.loci_in_use);
    if (settings.loci_in_use->empty()) {
      return false;
    }
    loaded->combinations.clear();
  }
  for (std::uint32_t k = 0; k < all.Count(); ++k) {
    check.loci[k].in_use = loaded->loci.InUse(LocusIndex{k});
  }
  check.warnings = loaded->warnings;
  check.input = std::move(*loaded);
  return true;
}

}  // namespace

AllocationCheck CheckAllocation(const TypedSettings& typed, bool may_replace_other_flow,
                                FileSource& source) {
  AllocationCheck check;
  const FileOpener open = OpenOnce(source);
  AllocationSettings settings = ReadableAllocation(typed, check.faults);
  check.settings = settings;
  check.flow = AllocationFlowName(settings.flow);
  const bool is_told = check.faults.IsEmpty() && Load(settings, open, check);
  if (!check.input) {
    const auto files = OpenWhatIsThere(settings, open, check.faults);
    const LociList loci = files.loci ? LociList(files.loci->tokens) : LociList();
    FindFaultsOfChoices(loci, settings, check);
    if (files.loci) {
      check.faults.AddAll(FindLociFaults(files.loci->tokens));
    }
    if (loci.Count() > 0) {
      FindAllFaults(files, loci, check.faults);
    }
    if (!is_told) {
      (void)Load(settings, open, check);
    }
  }
  if (!settings.project.empty()) {
    check.project =
        CheckFolder(ProjectFolder(settings.project), check.flow,
                    NamedInputs(AllocationSettingTable(), settings), may_replace_other_flow);
  }
  return check;
}

}  // namespace kaldo
