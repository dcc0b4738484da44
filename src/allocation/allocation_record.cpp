// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_record.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include <fmt/format.h>

#include "allocation/cumulative_sequence.h"
#include "genotypes/version.h"

namespace kaldo {

namespace {

struct NamedError {
  ErrorKind kind;
  std::string_view name;
};

constexpr std::array<NamedError, 3> kErrorNames = {{{ErrorKind::kNoError, "none"},
                                                    {ErrorKind::kUniform, "uniform"},
                                                    {ErrorKind::kNonUniform, "nonuniform"}}};

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

void RecordErrorModel(const ErrorModel& model, RunRecord& record) {
  for (const auto& [kind, name] : kErrorNames) {
    if (kind == model.kind) {
      record.settings.emplace_back("error", std::string(name));
    }
  }
  if (model.kind == ErrorKind::kUniform) {
    record.settings.emplace_back("epsilon", model.epsilon);
  }
  if (model.kind == ErrorKind::kNonUniform) {
    record.settings.emplace_back(
        "error_values",
        std::vector<double>{model.minus2, model.minus1, model.focal, model.plus1, model.plus2});
  }
}

std::optional<ErrorModel> ErrorModelOf(const RunRecord& record) {
  const std::string name = record.Setting<std::string>("error").value_or("");
  const auto* const named =
      std::find_if(kErrorNames.begin(), kErrorNames.end(),
                   [&name](const NamedError& error) { return error.name == name; });
  if (named == kErrorNames.end()) {
    return std::nullopt;
  }
  ErrorModel model;
  model.kind = named->kind;
  if (model.kind == ErrorKind::kUniform) {
    const auto epsilon = record.Setting<double>("epsilon");
    if (!epsilon) {
      return std::nullopt;
    }
    model.epsilon = *epsilon;
  }
  if (model.kind == ErrorKind::kNonUniform) {
    const auto values = record.Setting<std::vector<double>>("error_values");
    if (!values || values->size() != 5) {
      return std::nullopt;
    }
    model.minus2 = (*values)[0];
    model.minus1 = (*values)[1];
    model.focal = (*values)[2];
    model.plus1 = (*values)[3];
    model.plus2 = (*values)[4];
  }
  return model;
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

Problem RecordProblem(const std::string& path, std::string found) {
  Problem problem;
  problem.sentence = "This run record cannot be used!";
  problem.file = path;
  problem.found = std::move(found);
  return problem;
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
  if (record.flow != kNonSexedAllocationFlow && record.flow != kSexedAllocationFlow) {
    return tl::unexpected(
        RecordProblem(path, fmt::format("the flow {} is not an allocation", Quoted(record.flow))));
  }
  settings.flow = record.flow == kSexedAllocationFlow ? Flow::kSexed : Flow::kNonSexed;
  settings.project = record.Setting<std::string>("project").value_or("");
  for (const auto& [name, member] : PathsOf(settings.flow)) {
    settings.*member = record.Setting<std::string>(name).value_or("");
  }
  const auto model = ErrorModelOf(record);
  const auto tolerance = record.Setting<std::int64_t>("tolerance");
  if (!model || !tolerance) {
    return tl::unexpected(
        RecordProblem(path, fmt::format("the setting \"{}\" is missing or not understood",
                                        model ? "tolerance" : "error")));
  }
  settings.error_model = *model;
  settings.tolerance = OffsetTolerance{static_cast<std::int32_t>(*tolerance)};
  settings.loci_in_use = record.Setting<std::vector<std::string>>("use");
  if (const auto sequence = record.Setting<std::vector<std::int64_t>>("sequence")) {
    settings.sequence.emplace();
    for (const std::int64_t index : *sequence) {
      settings.sequence->push_back(static_cast<std::int32_t>(index));
    }
  }
  return settings;
}

}  // namespace kaldo
