// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_check.h"

#include "genotypes/all_faults.h"
#include "genotypes/kept_files.h"
#include "genotypes/record_checks.h"
#include "runs/input_clash.h"
#include "simulation/allocation_model.h"
#include "simulation/off_ladder.h"
#include "simulation/reports/simulation_file_names.h"
#include "simulation/simulation_checks.h"
#include "simulation/simulation_command.h"
#include "simulation/simulation_record.h"

namespace kaldo {

namespace {

/// Puts a number in place of the one at fault with which files can be loaded.
void PutNumberAside(const Problem& problem, SimulationSettings& settings) {
  const SimulationSettings defaults;
  switch (problem.kind) {
    case ProblemKind::kNegativeTolerance:
      settings.tolerance = defaults.tolerance;
      settings.scan_tolerance.clear();
      return;
    case ProblemKind::kTooManyIterations:
    case ProblemKind::kNoIteration:
      settings.iterations = defaults.iterations;
      return;
    case ProblemKind::kCriterionOutOfRange:
      settings.criterion = defaults.criterion;
      return;
    case ProblemKind::kStartWithTooSmall:
      settings.start_with = defaults.start_with;
      return;
    case ProblemKind::kNotAnUndefinedRate:
    case ProblemKind::kChoicesDoNotFit:
      settings.undefined = defaults.undefined;
      settings.scan_tolerance.clear();
      settings.scan_uncollected.clear();
      return;
    case ProblemKind::kNoPseudoOffspring:
    case ProblemKind::kTooManyPseudoOffspring:
      settings.offspring_per_iteration = defaults.offspring_per_iteration;
      return;
    default:
      break;
  }
  settings.scan_uncollected.clear();
  for (ParentalSet& set : settings.sets) {  // two parents suffice for pairs of any origin
    set.pseudo_collected = 2;
    set.uncollected = 2;
    set.estimated_collected = 1;
    set.estimated_uncollected = 1;
  }
}

/// Tests the choices, those of loci against their names, and puts aside what is at fault.
void FindFaultsOfChoices(const LociList& loci, SimulationSettings& settings, FullCheck& check) {
  for (const Problem& problem : FindFaultyNumbers(settings)) {
    check.faults.Add(problem);
    PutNumberAside(problem, settings);
  }
  if (loci.Count() == 0) {
    if (auto problem = ValidateForSimulation(settings.error_model)) {
      check.faults.Add(std::move(*problem));
    }
    return;
  }
  LeaveOutUnknownLoci(loci, settings.loci_in_use, check.faults);
  const auto test = [&] {
    SimulationInput only_loci;
    only_loci.loci = loci;
    return CheckChoices(settings, only_loci);
  };
  const auto put_aside = [&](const Problem& problem) {
    if (problem.kind == ProblemKind::kTooFewLociInUse ||
        problem.kind == ProblemKind::kTooManySubsets) {
      settings.strategy = LociStrategy::kChoice;
      settings.start_with = 1;
      return true;
    }
    if (CheckAllocationModel(settings) && !ValidateForSimulation(settings.error_model)) {
      settings.allocate_with.reset();
      return true;
    }
    return PutAside(problem, settings);
  };
  FindOneAfterAnother(test, put_aside, check.faults);
}

/// A locus that cannot be simulated is told, and left out so that the next one can be.
bool IsOfOneLocus(const Problem& problem) {
  return problem.kind == ProblemKind::kTooManyAlleles ||
         problem.kind == ProblemKind::kNoAlleleInSample;
}

bool AreSound(const SimulationFiles& files, const LociList& loci) {
  const std::size_t digits =
      DigitsPerField(files.groups.front().tokens, {loci.Count(), Separators::kNone});
  return !CheckSimulationFiles(files, loci) && !CheckLoci(files.loci) &&
         !CheckSimulationRecords(files, loci, digits);
}

std::vector<LocusStatistics> StatisticsOf(const SimulationFiles& files, LociList loci,
                                          const SimulationSettings& settings) {
  if (!AreSound(files, loci)) {
    return {};
  }
  if (settings.loci_in_use) {
    loci.Use(*settings.loci_in_use);
  }
  std::vector<CheckedFile> checked;
  for (const GroupFile& group : files.groups) {  // real offspring are not drawn from
    if (!group.IsLeftOut()) {
      checked.push_back({&group.tokens, Separators::kNone});
    }
  }
  return StatisticsOfLoci(checked, loci);
}

/// Loads the files, which may be sound though choices were not.
void Load(SimulationSettings settings, const FileOpener& open, SimulationCheck& check) {
  const auto files = OpenSimulationFiles(settings, open);
  if (!files) {
    check.faults.Add(files.error());
    return;
  }
  const LociList all(files->loci);
  check.loci = StatisticsOf(*files, all, settings);
  bool goes_on = true;
  while (goes_on) {
    auto input = LoadSimulationInput(settings, *files);
    if (input) {
      check.warnings = input->warnings;
      if (settings.error_model.kind == ErrorKind::kNonUniform) {
        check.off_ladder = OffLadderShares(settings, *input);
      }
      check.input = std::move(*input);
      break;
    }
    check.faults.Add(input.error());
    goes_on = IsOfOneLocus(input.error());
    if (goes_on) {
      LeaveOut(input.error().locus, all, settings.loci_in_use);
      settings.strategy = LociStrategy::kChoice;
      goes_on = !settings.loci_in_use->empty();
    }
  }
}

}  // namespace

SimulationCheck CheckSimulation(const TypedSettings& typed, bool may_replace_other_flow,
                                FileSource& source) {
  SimulationCheck check;
  const FileOpener open = OpenOnce(source);
  SimulationSettings settings = ReadableSimulation(typed, check.faults);
  check.settings = settings;
  check.flow = SimulationFlowName(settings.flow);
  if (check.faults.IsEmpty()) {
    Load(settings, open, check);
  }
  if (!check.input) {
    const auto files = OpenWhatIsThere(settings, open, check.faults);
    const LociList loci = files.loci ? LociList(*files.loci) : LociList();
    FindFaultsOfChoices(loci, settings, check);
    if (files.loci) {
      check.faults.AddAll(FindLociFaults(*files.loci));
    }
    if (loci.Count() > 0) {
      FindAllFaults(files, settings.flow, loci, check.faults);
    }
    Load(settings, open, check);
  }
  const auto named = NamedInputs(SimulationSettingTable(), settings);
  if (auto problem = ClashWithInput(std::string(kSavedLociFile), named)) {
    check.faults.Add(std::move(*problem));
  }
  if (!settings.project.empty()) {
    check.project =
        CheckFolder(ProjectFolder(settings.project), check.flow, named, may_replace_other_flow);
  }
  return check;
}

}  // namespace kaldo
