// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_record.h"

#include "base/version.h"
#include "confidence/confidence_run.h"
#include "simulation/allocation_model.h"

namespace kaldo {

std::string_view SimulationFlowName(Flow flow) {
  return flow == Flow::kSexed ? kSexedSimulationFlow : kNonSexedSimulationFlow;
}

RunRecord RecordOf(const SimulationSettings& settings, const SimulationInput& input,
                   const SimulationResult& result) {
  RunRecord record;
  record.version = Version();
  record.date = DateText(result.started);
  record.flow = SimulationFlowName(settings.flow);
  record.folder = result.folder;
  record.seed = result.seed;
  record.threads = result.threads;
  record.duration_seconds = result.duration.count();
  record.warnings = WarningLines(input.warnings);
  if (result.stepping.any_out_of_step) {
    record.warnings.emplace_back(kSteppingSentence);
  }
  if (settings.scores_confidence && WarnOfNegative(ConfidenceModelOf(settings))) {
    record.warnings.emplace_back(kNegativeProbabilitySentence);
  }
  SimulationSettings told = settings;
  told.keep = KeptFilesOf(settings);
  RecordSettings(SimulationSettingTable(), told, record);
  record.inputs = input.files;
  return record;
}

tl::expected<SimulationSettings, Problem> SimulationSettingsOf(const RunRecord& record,
                                                               const std::string& path) {
  SimulationSettings settings;
  RecordedSettings recorded(record);
  settings.flow = record.flow == kSexedSimulationFlow ? Flow::kSexed : Flow::kNonSexed;
  ReadRecorded(SimulationSettingTable(), recorded, settings);
  settings.seed = record.seed;
  if (auto fault = recorded.Fault(path)) {
    return tl::unexpected(std::move(*fault));
  }
  return settings;
}

std::optional<std::string> DifferenceOfSimulations(const RunRecord& then, const RunRecord& now) {
  const auto settings_then = SimulationSettingsOf(then, {});
  const auto settings_now = SimulationSettingsOf(now, {});
  return settings_then && settings_now
             ? FirstDifference(SimulationSettingTable(), *settings_then, *settings_now)
             : std::optional<std::string>(kUnknownSettings);
}

}  // namespace kaldo
