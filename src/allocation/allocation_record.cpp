// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_record.h"

#include <algorithm>
#include <filesystem>

#include <fmt/format.h>

#include "allocation/error_model_record.h"
#include "base/version.h"
#include "method/cumulative_sequence.h"

namespace kaldo {

namespace {

/// The path of each input file under its name in the record.
struct NamedPath {
  std::string_view name;
  std::string AllocationSettings::*path;
};

std::vector<NamedPath> PathsOf(Flow flow) {
  std::vector<NamedPath> paths = {{"loci", &AllocationSettings::loci_file},
                                  {"offspring", &AllocationSettings::offspring_file}};
  if (flow == Flow::kSexed) {
    paths.push_back({"males", &AllocationSettings::males_file});
    paths.push_back({"females", &AllocationSettings::females_file});
  } else {
    paths.push_back({"parents", &AllocationSettings::parents_file});
  }
  return paths;
}

std::vector<std::string> WarningsOf(const AllocationInput& input, const AllocationResult& result) {
  std::vector<std::string> warnings;
  if (result.stepping.any_out_of_step) {
    warnings.emplace_back(ClosingSentence(result));
  }
  const auto ambiguous = std::count_if(
      result.outcomes.begin(), result.outcomes.end(),
      [](const auto& outcome) { return outcome.pair_entries > 2 || outcome.more_than_five; });
  if (ambiguous > 0) {
    warnings.push_back(
        fmt::format("{} of {} offspring have several equally likely pairs; the first "
                    "one found decided.",
                    ambiguous, input.NumberOfOffspring()));
  }
  return warnings;
}

}  // namespace

RunRecord RecordOf(const AllocationSettings& settings, const AllocationInput& input,
                   const AllocationResult& result) {
  RunRecord record;
  record.version = Version();
  record.date = DateText(result.started);
  record.flow = settings.flow == Flow::kSexed ? kSexedAllocationFlow : kNonSexedAllocationFlow;
  record.folder = std::filesystem::current_path().string();
  record.threads = result.threads;
  record.duration_seconds = result.duration.count();
  record.warnings = WarningsOf(input, result);
  record.settings.emplace_back("project", settings.project);
  for (const auto& [name, path] : PathsOf(settings.flow)) {
    record.settings.emplace_back(std::string(name), settings.*path);
  }
  record.settings.emplace_back("tolerance", std::int64_t{settings.tolerance.Value()});
  RecordErrorModel(settings.error_model, record);
  if (settings.loci_in_use) {
    record.settings.emplace_back("use", *settings.loci_in_use);
  }
  if (settings.sequence) {
    const auto indices =
        settings.sequence->empty() ? FileOrderSequence(input.loci.Count()) : *settings.sequence;
    record.settings.emplace_back("sequence",
                                 std::vector<std::int64_t>(indices.begin(), indices.end()));
  }
  record.inputs = input.files;
  return record;
}

tl::expected<AllocationSettings, Problem> SettingsOf(const RunRecord& record,
                                                     const std::string& path) {
  AllocationSettings settings;
  RecordedSettings recorded(record);
  settings.flow = record.flow == kSexedAllocationFlow ? Flow::kSexed : Flow::kNonSexed;
  settings.project = recorded.Needed<std::string>("project");
  for (const auto& [name, member] : PathsOf(settings.flow)) {
    settings.*member = recorded.Needed<std::string>(name);
  }
  settings.tolerance = OffsetTolerance{recorded.WholeNumber("tolerance")};
  settings.error_model = RecordedErrorModel(recorded);
  settings.loci_in_use = recorded.Optional<std::vector<std::string>>("use");
  settings.sequence = recorded.WholeNumbers("sequence");
  if (auto fault = recorded.Fault(path)) {
    return tl::unexpected(std::move(*fault));
  }
  return settings;
}

}  // namespace kaldo
