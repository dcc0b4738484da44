// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tl/expected.hpp>

#include "base/alike.h"
#include "genotypes/file_wide_checks.h"
#include "genotypes/loci_list.h"
#include "runs/run_record.h"
#include "simulation/simulation_settings.h"

namespace kaldo {

/// The file behind a parental group. It is left out where nobody is drawn from it: then it is as if
/// it were empty.
struct GroupFile {
  TokenFile tokens;
  std::string role;            ///< as in messages and run records
  bool holds_parents = false;  ///< collected parents, not a sample to draw from
  /// Told for a locus with one allele of two.
  ProblemKind half_defined = ProblemKind::kHalfDefinedInSample;
  UndefinedAlleles in_parents = UndefinedAlleles::kNone;  ///< those that collected ones may have

  bool IsLeftOut() const { return tokens.Path().empty(); }
};

/// The open files of a simulation.
struct SimulationFiles {
  TokenFile loci;
  std::vector<GroupFile> groups;            ///< as in the design of the flow
  std::optional<GroupFile> undefined_like;  ///< real offspring, where one was named

  /// The files that were opened: of the groups, and that of real offspring.
  std::vector<const GroupFile*> Genotypes() const;

  /// What a run record says of them.
  std::vector<RecordedInput> Recorded() const;
};

/// Opens the names-of-loci file alone, which must be given.
tl::expected<TokenFile, Problem> OpenSimulationLoci(const SimulationSettings& settings,
                                                    const FileOpener& open);

/// Opens the files: first every name must be given, then every file must open.
tl::expected<SimulationFiles, Problem> OpenSimulationFiles(const SimulationSettings& settings);
tl::expected<SimulationFiles, Problem> OpenSimulationFiles(const SimulationSettings& settings,
                                                           const FileOpener& open);

/// The files of a simulation as far as they can be opened.
struct OpenedSimulationFiles {
  std::optional<TokenFile> loci;
  std::vector<GroupFile> groups;
};

/// Opens every file that can be opened; the names and files that are missing are faults.
OpenedSimulationFiles OpenWhatIsThere(const SimulationSettings& settings, const FileOpener& open,
                                      AlikeGroups<Problem>& faults);

/// All faults that the tests below would tell of these files, one after the other.
void FindAllFaults(const OpenedSimulationFiles& files, Flow flow, const LociList& loci,
                   AlikeGroups<Problem>& faults);

/// The tests of the file screens, group after group; each screen tells its own fault at once.
std::optional<Problem> CheckSimulationFiles(const SimulationFiles& files, const LociList& loci);

/// The stricter tests of every record: those of an allocation, and no separators.
std::optional<Problem> CheckSimulationRecords(const SimulationFiles& files, const LociList& loci,
                                              std::size_t digits_per_field);

}  // namespace kaldo
