// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/flows/record_opener.h"

#include <QDir>

#include <fmt/format.h>

#include "app/base/messages.h"
#include "app/base/text.h"
#include "base/version.h"
#include "simulation/recorded_files.h"

namespace kaldo {

namespace {

void OfferFolder(QWidget* parent, const RunRecord& record, const std::string& path) {
  const QString folder = PathText(WorkingFolderNow(record, path));
  if (folder == QDir::currentPath() || !QDir(folder).exists()) {
    return;
  }
  const QString what = folder == PathText(record.folder)
                           ? Text("The recorded run was started in the folder\n")
                           : Text("The study of the recorded run was moved to the folder\n");
  if (AskYesNo(parent, what + folder + Text("\nUse it as the working folder?"))) {
    QDir::setCurrent(folder);
  }
}

void TellChanges(QWidget* parent, const LocatedRecord& located) {
  const RunRecord& record = located.record;
  std::vector<std::string> changes = located.changes.missing;
  const auto& changed = located.changes.changed;
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

}  // namespace

std::optional<RunSettings> OpenRunRecord(QWidget* parent, const std::string& path) {
  const auto record = ReadRunRecord(path);
  if (!record) {
    ShowProblem(parent, record.error());
    return std::nullopt;
  }
  if (const auto settings = RunSettingsOf(*record, path); !settings) {
    ShowProblem(parent, settings.error());
    return std::nullopt;
  }
  OfferFolder(parent, *record, path);
  const auto located = LocateRecordedFiles(*record, path);
  if (!located) {
    ShowProblem(parent, located.error());
    return std::nullopt;
  }
  TellChanges(parent, *located);
  return RunSettingsOf(located->record, path).value();
}

}  // namespace kaldo
