// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/foreign_hint.h"

#include <array>
#include <map>
#include <ostream>

#include <fmt/format.h>

#include "allocation/allocation_settings.h"
#include "base/shell_text.h"
#include "interchange/import/import_run.h"
#include "simulation/simulation_settings.h"

namespace kaldo {

namespace {

/// The option of an import for a file of that role in a run; nothing for the names of loci.
std::string_view ImportOption(std::string_view role) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 7> kOptions{
      {{"parents", "--parents"},
       {"males", "--males"},
       {"females", "--females"},
       {"offspring", "--offspring"},
       {"collected-parents", "--parents"},
       {"collected-males", "--males"},
       {"collected-females", "--females"}}};
  for (const auto& [each, option] : kOptions) {
    if (each == role) {
      return option;
    }
  }
  return {};
}

/// The command for all foreign files of the run: each by its role, or once and by its populations,
/// or by a list where it has none, where it has several.
std::string ConvertingCommand(const std::string& file, const ForeignLook& look,
                              const std::vector<RecordedInput>& inputs, FileSource& source) {
  std::map<std::string, std::string_view> options;
  bool has_several_roles = false;
  for (const RecordedInput& input : inputs) {
    const std::string_view option = ImportOption(input.role);
    if (!option.empty() && (input.path == file || LookAtForeignFile(input.path, source))) {
      has_several_roles = !options.emplace(input.path, option).second || has_several_roles;
    }
  }
  ShellCommand command("kaldo import");
  if (has_several_roles || !options.contains(file)) {
    command = ShellCommand("kaldo import " + ShellQuoted(file));
    if (look.has_populations) {
      command.Add("--offspring-populations", "NAME");
    } else {
      command.Add("--offspring-list", "FILE");
    }
  } else {
    for (const auto& [path, option] : options) {
      command.Add(option, path);
    }
  }
  command.Add("--to", "imported");
  return command.Text();
}

}  // namespace

template <>
std::vector<RecordedInput> InputsOf(const AllocationSettings& settings) {
  return NamedInputs(AllocationSettingTable(), settings);
}

template <>
std::vector<RecordedInput> InputsOf(const SimulationSettings& settings) {
  return NamedInputs(SimulationSettingTable(), settings);
}

bool TellForeignFile(const std::string& file, const std::vector<RecordedInput>& inputs,
                     FileSource& source, const CommandLineStreams& streams) {
  if (file.empty()) {
    return false;
  }
  const auto look = LookAtForeignFile(file, source);
  if (!look) {
    return false;
  }
  streams.err << Escaped(fmt::format("{} Convert it:", look->sentence)) << "\n  "
              << Escaped(ConvertingCommand(file, *look, inputs, source)) << '\n';
  return true;
}

}  // namespace kaldo
