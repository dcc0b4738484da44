// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_confidence.h"

#include <algorithm>

#include "allocation/allocation_record.h"
#include "allocation/reports/result_line.h"

namespace kaldo {

AllocationEvidence::AllocationEvidence(const AllocationSettings& settings,
                                       const AllocationInput& input)
    : settings_(settings), input_(input), loci_(input.combinations.back()) {
  std::sort(loci_.begin(), loci_.end());
}

ConfidenceSettings AllocationEvidence::Settings() const {
  ConfidenceSettings settings;
  settings.error_model = settings_.error_model;
  settings.level = settings_.confidence.level;
  settings.threads = settings_.threads;
  settings.relatives = settings_.confidence.relatives;
  return settings;
}

ConfidenceInput AllocationEvidence::Input(std::span<const ReportedParents> reported) const {
  return {settings_.flow,    input_.table, input_.offspring, input_.groups,
          input_.catalogues, loci_,        reported,         input_.allowed};
}

std::vector<ReportedParents> ReportedBy(Flow flow, const AllocationResult& result) {
  std::vector<ReportedParents> reported;
  reported.reserve(result.outcomes.size());
  for (const AllocationOutcome& outcome : result.outcomes) {
    const AllocatedSides sides = SidesOf(flow, outcome);
    reported.push_back({sides.first.parent, sides.second.parent});
  }
  return reported;
}

void AddConfidence(const AllocationSettings& settings, const AllocationInput& input,
                   RunObserver& observer, Workforce& workforce, AllocationResult& result) {
  const AllocationEvidence evidence(settings, input);
  const auto reported = ReportedBy(settings.flow, result);
  const ConfidenceInput study = evidence.Input(reported);
  result.confidence = ComputeConfidence(evidence.Settings(), study, workforce, observer,
                                        [&] { return RecordOf(settings, input, result); });
  result.loci_quality = QualityOfLoci(study, *result.confidence);
}

}  // namespace kaldo
