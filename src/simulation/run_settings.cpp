// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/run_settings.h"

#include <fmt/format.h>

#include "allocation/allocation_record.h"
#include "simulation/simulation_record.h"

namespace kaldo {

namespace {

bool IsAllocation(const RunRecord& record) {
  return record.flow == kNonSexedAllocationFlow || record.flow == kSexedAllocationFlow;
}

bool IsSimulation(const RunRecord& record) {
  return record.flow == kNonSexedSimulationFlow || record.flow == kSexedSimulationFlow;
}

}  // namespace

bool HasKnownFlow(const RunRecord& record) { return IsAllocation(record) || IsSimulation(record); }

tl::expected<RunSettings, Problem> RunSettingsOf(const RunRecord& record, const std::string& path) {
  if (IsAllocation(record)) {
    return SettingsOf(record, path);
  }
  if (IsSimulation(record)) {
    return SimulationSettingsOf(record, path);
  }
  return tl::unexpected(
      Problem{.kind = ProblemKind::kUnusableRunRecord,
              .file = path,
              .found = fmt::format("the flow {} is not known", Quoted(record.flow))});
}

}  // namespace kaldo
