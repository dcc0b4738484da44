// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/flows/record_opener.h"

#include <QDir>

#include <fmt/format.h>

#include "app/base/messages.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "base/version.h"
#include "simulation/recorded_files.h"

namespace kaldo {

namespace {

void OfferFolder(QWidget* parent, const RunRecord& record, const std::string& path) {
  const QString folder = PathText(WorkingFolderNow(record, path));
  if (folder == QDir::currentPath() || !QDir(folder).exists()) {
    return;
  }
  const QString question =
      folder == PathText(record.folder)
          ? Tr("The recorded run was started in the folder\n%1\nUse it as the working folder?")
          : Tr("The study of the recorded run was moved to the folder\n%1\nUse it as the working "
               "folder?");
  if (AskYesNo(parent, question.arg(folder))) {
    QDir::setCurrent(folder);
  }
}

void TellChanges(QWidget* parent, const LocatedRecord& located) {
  const RunRecord& record = located.record;
  std::vector<std::string> changes = located.changes.missing;
  const auto& changed = located.changes.changed;
  changes.insert(changes.end(), changed.begin(), changed.end());
  if (record.version != Version()) {
    changes.push_back(Bytes(Tr("The record was made by KALDO %1, this is KALDO %2.")
                                .arg(Text(record.version), Text(Version()))));
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
