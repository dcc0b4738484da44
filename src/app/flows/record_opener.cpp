// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/flows/record_opener.h"

#include <QDir>

#include <fmt/format.h>

#include "app/base/messages.h"
#include "app/base/opened_files.h"
#include "app/base/text.h"
#include "base/version.h"
#include "simulation/recorded_files.h"

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

/// What is no text is not kept open, but may still have changed rather than gone.
tl::expected<FileDigest, Problem> DigestNow(const std::string& path, OpenedFiles& opened) {
  const auto file = opened.Open(path);
  return file ? file->Digest() : DigestOfFile(path);
}

void TellChanges(QWidget* parent, const RunRecord& record, OpenedFiles& opened) {
  auto [changes, changed] = CompareInputs(record, [&opened](const std::string& path) {
    return DigestNow(path, opened);
  });  // missing ones first
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

std::optional<RunSettings> OpenRunRecord(QWidget* parent, const std::string& path,
                                         OpenedFiles& opened) {
  const auto record = ReadRunRecord(path);
  if (!record) {
    ShowProblem(parent, record.error());
    return std::nullopt;
  }
  const auto settings = RunSettingsOf(*record, path);
  if (!settings) {
    ShowProblem(parent, settings.error());
    return std::nullopt;
  }
  OfferFolder(parent, *record);
  // The screens read the files at once to tell what they hold.
  if (const auto problem = RefuseRecordedFiles(*record, path)) {
    ShowProblem(parent, *problem);
    return std::nullopt;
  }
  TellChanges(parent, *record, opened);
  return *settings;
}

}  // namespace kaldo
