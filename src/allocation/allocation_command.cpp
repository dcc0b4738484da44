// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_command.h"

#include <fmt/format.h>

namespace kaldo {

namespace {

/// As many digits as it takes to read the same probabilities back, not the six of the reports.
std::string ErrorModelOption(const ErrorModel& model) {
  switch (model.kind) {
    case ErrorKind::kNoError:
      return "none";
    case ErrorKind::kUniform:
      return fmt::format("uniform={}", model.epsilon);
    case ErrorKind::kNonUniform:
      return fmt::format("nonuniform={},{},{},{},{}", model.minus2, model.minus1, model.focal,
                         model.plus1, model.plus2);
    case ErrorKind::kNotChosen:
      break;
  }
  return {};  // refused by the command as by the window
}

bool IsDefault(const ErrorModel& model) {
  return model.kind == ErrorKind::kNonUniform &&
         ErrorModelOption(model) == ErrorModelOption(ErrorModel{});
}

}  // namespace

std::string SequenceOption(const std::vector<std::int32_t>& sequence) {
  return fmt::format("{}", fmt::join(sequence, ","));
}

void AddMethodOptions(ShellCommand& command, OffsetTolerance tolerance,
                      const ErrorModel& error_model,
                      const std::optional<std::vector<std::string>>& loci_in_use) {
  if (tolerance != AllocationSettings{}.tolerance) {
    command.Add("--tolerance", fmt::format("{}", tolerance.Value()));
  }
  if (!IsDefault(error_model)) {
    command.Add("--error", ErrorModelOption(error_model));
  }
  if (loci_in_use) {
    command.Add("--use", fmt::format("{}", fmt::join(*loci_in_use, ",")));
  }
}

std::string CommandOf(const AllocationSettings& settings) {
  ShellCommand command("kaldo allocate");
  command.AddIfAny("--project", settings.project);
  command.AddIfAny("--loci", settings.loci_file);
  if (settings.flow == Flow::kSexed) {
    // Given even when empty: they are what makes the run a sexed one.
    command.Add("--males", settings.males_file);
    command.Add("--females", settings.females_file);
  } else {
    command.AddIfAny("--parents", settings.parents_file);
  }
  command.AddIfAny("--offspring", settings.offspring_file);
  AddMethodOptions(command, settings.tolerance, settings.error_model, settings.loci_in_use);
  if (settings.sequence && settings.sequence->empty()) {
    command.Add("--sequence");
  } else if (settings.sequence) {
    command.Add("--sequence", SequenceOption(*settings.sequence));
  }
  return command.Text();
}

}  // namespace kaldo
