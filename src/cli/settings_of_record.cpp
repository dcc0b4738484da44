// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/settings_of_record.h"

#include <algorithm>
#include <initializer_list>

#include "cli/loci_by_name.h"
#include "runs/earlier_run.h"
#include "simulation/run_settings.h"

namespace kaldo {

namespace {

template <typename Settings>
TypedSettings TextsOf(SettingTable<Settings> table, const Settings& settings) {
  TypedSettings texts;
  for (const Setting<Settings>& setting : table) {
    if (setting.option.empty() || setting.key == "project" || setting.in_head_of_record ||
        !setting.Applies(settings)) {
      continue;
    }
    if (const auto text = setting.value.text(settings)) {
      texts[setting.key] = *text;
    }
  }
  return texts;
}

bool NamesAny(const TypedSettings& typed, std::initializer_list<std::string_view> keys) {
  return std::any_of(keys.begin(), keys.end(),
                     [&](std::string_view key) { return typed.contains(key); });
}

/// Files of one flow stand for those of the other.
void LeaveOutOtherFlow(const TypedSettings& typed, TypedSettings& recorded) {
  if (NamesAny(typed, {"males", "females"})) {
    recorded.erase("parents");
  }
  if (NamesAny(typed, {"parents"})) {
    recorded.erase("males");
    recorded.erase("females");
  }
  if (NamesAny(typed, {kDropKey})) {
    recorded.erase("use");
  }
}

}  // namespace

tl::expected<TypedSettings, Problem> WithSettingsOfRecord(TypedSettings typed,
                                                          const std::string& path,
                                                          bool of_simulation) {
  const std::string file = RecordNamedBy(path);
  const auto settings = ReadRunRecord(file).and_then(
      [&](const RunRecord& record) { return RunSettingsOf(record, file); });
  if (!settings) {
    return tl::unexpected(settings.error());
  }
  if (std::holds_alternative<SimulationSettings>(*settings) != of_simulation) {
    return tl::unexpected(
        Problem{.kind = ProblemKind::kUnusableRunRecord,
                .file = file,
                .found = of_simulation ? "it is of an allocation" : "it is of a simulation"});
  }
  TypedSettings recorded =
      of_simulation ? TextsOf(SimulationSettingTable(), std::get<SimulationSettings>(*settings))
                    : TextsOf(AllocationSettingTable(), std::get<AllocationSettings>(*settings));
  LeaveOutOtherFlow(typed, recorded);
  typed.merge(std::move(recorded));
  return typed;
}

}  // namespace kaldo
