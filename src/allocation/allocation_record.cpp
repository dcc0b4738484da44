// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_record.h"

#include <algorithm>

#include <fmt/format.h>

#include "allocation/findings.h"
#include "base/version.h"
#include "method/cumulative_sequence.h"

namespace kaldo {

namespace {

std::vector<std::string> WarningsOf(const AllocationInput& input, const AllocationResult& result) {
  std::vector<std::string> warnings = WarningLines(input.warnings);
  if (result.stepping.any_out_of_step) {
    warnings.emplace_back(ClosingSentence(result));
  }
  const auto ambiguous =
      std::count_if(result.outcomes.begin(), result.outcomes.end(), HasSeveralPairs);
  if (ambiguous > 0) {
    warnings.push_back(
        fmt::format("{} of {} offspring have several equally likely pairs; the first "
                    "one found decided.",
                    ambiguous, input.NumberOfOffspring()));
  }
  if (result.confidence && !result.confidence->is_meaningful) {
    warnings.emplace_back(kNegativeProbabilitySentence);
  }
  return warnings;
}

}  // namespace

std::string_view AllocationFlowName(Flow flow) {
  return flow == Flow::kSexed ? kSexedAllocationFlow : kNonSexedAllocationFlow;
}

RunRecord RecordOf(const AllocationSettings& settings, const AllocationInput& input,
                   const AllocationResult& result) {
  RunRecord record;
  record.version = Version();
  record.date = DateText(result.started);
  record.flow = AllocationFlowName(settings.flow);
  record.folder = result.folder;
  record.threads = result.threads;
  record.duration_seconds = result.duration.count();
  record.warnings = WarningsOf(input, result);
  AllocationSettings told = settings;
  if (told.sequence && told.sequence->empty()) {
    told.sequence = FileOrderSequence(input.loci.Count());
  }
  RecordSettings(AllocationSettingTable(), told, record);
  record.inputs = input.files;
  return record;
}

tl::expected<AllocationSettings, Problem> SettingsOf(const RunRecord& record,
                                                     const std::string& path) {
  AllocationSettings settings;
  RecordedSettings recorded(record);
  settings.flow = record.flow == kSexedAllocationFlow ? Flow::kSexed : Flow::kNonSexed;
  ReadRecorded(AllocationSettingTable(), recorded, settings);
  if (auto fault = recorded.Fault(path)) {
    return tl::unexpected(std::move(*fault));
  }
  return settings;
}

std::optional<std::string> DifferenceOfAllocations(const RunRecord& then, const RunRecord& now) {
  const auto settings_then = SettingsOf(then, {});
  const auto settings_now = SettingsOf(now, {});
  return settings_then && settings_now
             ? FirstDifference(AllocationSettingTable(), *settings_then, *settings_now)
             : std::optional<std::string>(kUnknownSettings);
}

}  // namespace kaldo
