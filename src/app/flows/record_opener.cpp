// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/flows/record_opener.h"

#include <QDir>

#include <fmt/format.h>

#include "allocation/allocation_record.h"
#include "app/base/messages.h"
#include "app/base/text.h"
#include "base/version.h"
#include "simulation/simulation_record.h"

namespace kaldo {

namespace {

void OfferFolder(QWidget* parent, const RunRecord& record) {
  const QString folder = PathText(record.folder);
  if (folder == QDir::currentPath() || !QDir(folder).exists()) {
    return;
  }
  if (AskYesNo(parent, Text("The recorded run was started in the folder\n") + folder +
                           Text("\nUse it as the working folder?"))) {
    QDir::setCurrent(folder);
  }
}

void TellChanges(QWidget* parent, const RunRecord& record) {
  auto [changes, changed] = CompareInputs(record);  // missing ones first
  changes.insert(changes.end(), changed.begin(), changed.end());
  if (record.version != Version()) {
    changes.push_back(fmt::format("The record was made by KALDO {}, this is KALDO {}.",
                                  record.version, Version()));
  }
  if (changes.empty()) {
    return;
  }
  ShowProblem(parent, {.kind = ProblemKind::kRunMayDiffer,
                       .found = fmt::format("{}", fmt::join(changes, " "))});
}

/// Takes what `read` found, or tells its fault.
template <typename Settings>
std::optional<RunSettings> TakeOrTell(QWidget* parent, tl::expected<Settings, Problem> read) {
  if (!read) {
    ShowProblem(parent, read.error());
    return std::nullopt;
  }
  return RunSettings(std::move(*read));
}

}  // namespace

std::optional<RunSettings> OpenRunRecord(QWidget* parent, const std::string& path) {
  const auto record = ReadRunRecord(path);
  if (!record) {
    ShowProblem(parent, record.error());
    return std::nullopt;
  }
  std::optional<RunSettings> settings;
  if (record->flow == kNonSexedAllocationFlow || record->flow == kSexedAllocationFlow) {
    settings = TakeOrTell(parent, SettingsOf(*record, path));
  } else if (record->flow == kNonSexedSimulationFlow || record->flow == kSexedSimulationFlow) {
    settings = TakeOrTell(parent, SimulationSettingsOf(*record, path));
  } else {
    ShowProblem(parent, {.kind = ProblemKind::kUnusableRunRecord,
                         .file = path,
                         .found = fmt::format("the flow {} is not known", Quoted(record->flow))});
  }
  if (settings) {
    OfferFolder(parent, *record);
    TellChanges(parent, *record);
  }
  return settings;
}

}  // namespace kaldo
