// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/flows/results_opener.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <algorithm>

#include <fmt/format.h>

#include "allocation/allocation_command.h"
#include "allocation/reopened_allocation.h"
#include "app/base/command_text.h"
#include "app/base/messages.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/flows/run_dialog.h"
#include "app/results/allocation_window.h"
#include "app/results/simulation_window.h"
#include "base/counted_text.h"
#include "runs/earlier_run.h"
#include "runs/project_lock.h"
#include "simulation/recorded_files.h"
#include "simulation/reopened_simulation.h"
#include "simulation/run_settings.h"
#include "simulation/simulation_command.h"

namespace kaldo {

namespace {

/// A record whose input files are where they were looked for, with the recorded contents.
struct CheckedRecord {
  std::string path;
  RunRecord record;
  RunSettings then;  ///< with the paths of the record
  RunSettings now;   ///< with those at which the files are
};

tl::expected<CheckedRecord, Problem> Check(const std::string& path) {
  auto record = ReadRunRecord(path);
  if (!record) {
    return tl::unexpected(std::move(record.error()));
  }
  auto then = RunSettingsOf(*record, path);
  if (!then) {
    return tl::unexpected(std::move(then.error()));
  }
  const auto located = LocateRecordedFiles(*record, path);
  if (!located) {
    return tl::unexpected(located.error());
  }
  const auto& [missing, changed] = located->changes;
  if (!missing.empty() || !changed.empty()) {
    return tl::unexpected(Problem{
        .kind = missing.empty() ? ProblemKind::kInputsChanged : ProblemKind::kUnusableRunRecord,
        .file = path,
        .found = fmt::format("{}{}{}", fmt::join(missing, " "), missing.empty() ? "" : " ",
                             fmt::join(changed, " "))});
  }
  auto now = RunSettingsOf(located->record, path);
  if (!now) {
    return tl::unexpected(std::move(now.error()));
  }
  return CheckedRecord{path, std::move(*record), std::move(*then), std::move(*now)};
}

/// What an allocation opened again shows, and what its reports cannot tell.
struct Opened {
  QString untold;
  std::vector<NamedExportForm> exports;
};

QString WithoutCertainty(const Problem& problem) {
  return Tr(" How sure the allocations are is not shown in full: %1.").arg(TrCore(problem.found));
}

Opened OpenedOf(const ReopenedAllocation& reopened) {
  const auto& outcomes = reopened.run.result.outcomes;
  const auto first_alone = static_cast<std::size_t>(
      std::count_if(outcomes.begin(), outcomes.end(), IsOnlyFirstPairTold));
  Opened opened;
  for (const NamedExportForm& form : kAllExportForms) {
    const bool is_told = form.choice == &ExportForms::pedigree ||
                         (form.choice == &ExportForms::tables && first_alone == 0);
    if (is_told) {
      opened.exports.push_back(form);
    }
  }
  if (reopened.without_certainty) {
    opened.untold += WithoutCertainty(*reopened.without_certainty);
  }
  if (first_alone > 0) {
    opened.untold += TrCount(
        " Of %n offspring with more than five pairs the reports name the first one alone, so that "
        "tables, which count them, cannot be exported.",
        " Of %n offspring with more than five pairs the reports name the first one alone, so that "
        "tables, which count them, cannot be exported.",
        first_alone);
  }
  opened.untold +=
      Tr(" An HTML report and a workbook need more digits than the reports have: run again for "
         "them.");
  return opened;
}

Opened OpenedOf(const SimulationRun& /*run*/) {
  return {Tr(" Figures have the digits of the reports; NA stands where these tell none. Exports "
             "need all digits: run again for them."),
          {}};
}

void Show(ResultsWindow* window, const QString& note, Opened opened, const QString& command) {
  window->SetCommand(command);
  window->SetNote(note + opened.untold);
  window->NarrowExports(std::move(opened.exports));
  window->show();
  window->raise();
  window->activateWindow();
}

SimulationRun RunIn(SimulationRun run) { return run; }
AllocationRun RunIn(ReopenedAllocation reopened) { return std::move(reopened.run); }

/// Reads a run with `read`, which gets an observer. What goes wrong is told.
template <typename Reopened, typename Read>
std::optional<Reopened> ReadRun(QWidget* parent, Read read) {
  tl::expected<Reopened, Problem> run;
  const bool done = RunWithProgress(parent, Tr("Open results"),
                                    [&](RunObserver& observer) { run = read(observer); });
  if (done && !run) {
    ShowProblem(parent, run.error());
  }
  return done && run ? std::optional<Reopened>(std::move(*run)) : std::nullopt;
}

/// The same, and shows it in a `Window`.
template <typename Window, typename Reopened, typename Settings, typename Read>
Window* ReadAndShow(QWidget* parent, const QString& folder, const CheckedRecord& checked,
                    const Settings& settings, Read read) {
  auto run = ReadRun<Reopened>(parent, read);
  if (!run) {
    return nullptr;
  }
  const QString note =
      Tr("Opened from the reports of %1; nothing was run again.").arg(Text(checked.record.date));
  Opened opened = OpenedOf(*run);
  auto* const window = new Window(settings, RunIn(std::move(*run)), folder);
  Show(window, note, std::move(opened),
       CommandInFolder(WorkingFolderNow(checked.record, checked.path),
                       CommandOf(std::get<Settings>(checked.then))));
  return window;
}

/// What an allocation says, from its reports. What goes wrong is told.
std::optional<OtherRun> ReadOtherRun(QWidget* parent, const CheckedRecord& checked) {
  const auto* now = std::get_if<AllocationSettings>(&checked.now);
  if (now == nullptr) {
    ShowFailure(parent, Tr("This is the record of simulations. Only allocations can be compared."));
    return std::nullopt;
  }
  const RecordedReports reports(checked.record, checked.path);
  const auto reopened = ReadRun<ReopenedAllocation>(parent, [&](RunObserver& observer) {
    return ReopenAllocation(std::get<AllocationSettings>(checked.then), *now, checked.record,
                            reports, observer);
  });
  if (!reopened) {
    return std::nullopt;
  }
  if (reopened->without_certainty) {
    ShowProblem(parent, *reopened->without_certainty);
  }
  return OtherRun{StatementsOf(*now, reopened->run.input, reopened->run.result),
                  QFileInfo(PathText(checked.path)).absolutePath()};
}

/// What a run that died left half done is settled first, as before any other use of the folder.
/// False where that fails, which is told.
bool Recover(QWidget* parent, const std::string& record) {
  try {
    const QString folder = QFileInfo(PathText(record)).absolutePath();
    if (const auto recovered = RecoverProject(ProjectFolder(PathBytes(folder)))) {
      ShowSentence(parent, *recovered);
    }
    return true;
  } catch (const RunFailure& failure) {
    ShowFailure(parent, TrCore(failure.what()));
    return false;
  }
}

void ShowRun(QWidget* parent, const CheckedRecord& checked, const StartTrial& start_trial) {
  const RecordedReports reports(checked.record, checked.path);
  const QString folder = QFileInfo(PathText(checked.path)).absolutePath();
  if (const auto* now = std::get_if<AllocationSettings>(&checked.now)) {
    auto* const window = ReadAndShow<AllocationWindow, ReopenedAllocation>(
        parent, folder, checked, *now, [&](RunObserver& observer) {
          return ReopenAllocation(std::get<AllocationSettings>(checked.then), *now, checked.record,
                                  reports, observer);
        });
    if (window != nullptr) {
      window->OfferTrial(start_trial);
      window->OfferComparison(AskForOtherRun);
    }
  } else if (const auto* simulation = std::get_if<SimulationSettings>(&checked.now)) {
    ReadAndShow<SimulationWindow, SimulationRun>(
        parent, folder, checked, *simulation, [&](RunObserver& /*observer*/) {
          return ReopenSimulation(*simulation, checked.record, reports);
        });
  }
}

}  // namespace

std::optional<OtherRun> AskForOtherRun(QWidget* parent) {
  const QString picked =
      QFileDialog::getOpenFileName(parent, Tr("Run record of the other run"), QDir::currentPath(),
                                   Tr("Run records (*.toml);;All files (*)"));
  if (picked.isEmpty()) {
    return std::nullopt;
  }
  const auto checked =
      Recover(parent, PathBytes(picked)) ? std::optional(Check(PathBytes(picked))) : std::nullopt;
  if (!checked) {
    return std::nullopt;
  }
  if (!*checked) {
    ShowProblem(parent, checked->error());
    return std::nullopt;
  }
  return ReadOtherRun(parent, **checked);
}

void OpenResults(QWidget* parent, const std::string& path, const StartTrial& start_trial) {
  const std::string record = RecordNamedBy(path);
  if (!Recover(parent, record)) {
    return;
  }
  const auto checked = Check(record);
  if (!checked) {
    return ShowProblem(parent, checked.error());
  }
  ShowRun(parent, *checked, start_trial);
}

}  // namespace kaldo
