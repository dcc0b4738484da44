// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "confidence/verdict.h"
#include "method/error_model.h"
#include "method/flow.h"
#include "method/offset_tolerance.h"
#include "runs/exports.h"
#include "runs/keeping_pace.h"
#include "runs/setting.h"

namespace kaldo {

/// Whether it is computed how sure each allocation is, and how.
struct WantedConfidence {
  bool computed = true;
  double level = kDefaultConfidenceLevel;  ///< of the verdicts, see IsConfidenceLevel
  bool relatives = false;  ///< parents that were not collected may be full sibs of candidates

  friend bool operator==(const WantedConfidence&, const WantedConfidence&) = default;
};

/// Everything a user chooses for an allocation. The command line and the windows fill it; no rule
/// of the method is theirs. Each member but `flow`, which follows from the files, and the last
/// is declared in the table below.
struct AllocationSettings {
  Flow flow = Flow::kNonSexed;

  std::string project;  ///< the folder for the results, as typed

  // Paths as typed; they stand so in the reports.
  std::string parents_file;  ///< non-sexed
  std::string males_file;    ///< sexed
  std::string females_file;  ///< sexed
  std::string offspring_file;
  std::string loci_file;

  // Files of what is known of single offspring beforehand; empty where nothing is known.
  std::string known_mother_file;
  std::string candidates_file;
  std::string offspring_groups_file;

  OffsetTolerance tolerance{1};
  ErrorModel error_model = kErrorModelUnlessTold;

  /// Names of the loci in use; all when nothing is said.
  std::optional<std::vector<std::string>> loci_in_use;

  bool allow_undefined_parents = false;  ///< see AddUndefinedAllele

  /// Set for a run over a cumulative sequence of loci: the position of each locus of the
  /// names-of-loci file. An empty vector stands for the file order.
  std::optional<std::vector<std::int32_t>> sequence;

  WantedConfidence confidence;

  WantedExports exports;  ///< further files, in forms of other programs

  unsigned threads = 0;  ///< 0: as many as the machine has cores. Results never depend on it.

  /// The user agrees that the results of another flow in the project folder go. No run record has
  /// this: it is a decision of the moment.
  bool may_replace_other_flow = false;

  /// Whether an unfinished run in the project folder is gone on with. In no run record either.
  KeptWork kept_work = KeptWork::kAnew;

  friend bool operator==(const AllocationSettings&, const AllocationSettings&) = default;
};

/// The declarations of all settings, in allocation_settings.cpp.
SettingTable<AllocationSettings> AllocationSettingTable();

/// What the windows show before anything is typed.
AllocationSettings FirstShownAllocation(Flow flow);

}  // namespace kaldo
