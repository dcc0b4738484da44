// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/page_session.h"

#include <new>
#include <sstream>

#include "allocation/allocation_check.h"
#include "allocation/allocation_command.h"
#include "base/problem.h"
#include "cli/check_json.h"
#include "cli/refusal.h"
#include "interchange/export/allocation_exporter.h"
#include "interchange/export/run_exports.h"
#include "interchange/export/simulation_exporter.h"
#include "interchange/import/import_run.h"
#include "runs/run_record.h"
#include "runs/run_refused.h"
#include "simulation/run_settings.h"
#include "simulation/simulation_check.h"
#include "simulation/simulation_command.h"
#include "simulation/trial_of_allocation.h"
#include "web/form_json.h"
#include "web/offspring_table.h"
#include "web/summary_json.h"

namespace kaldo {

namespace {

Json ProblemJson(const std::string& text) {
  Json lines = Json::array();
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return {{"problem", std::move(lines)}};
}

Json ProblemJson(const Problem& problem) {
  std::ostringstream err;
  Tell(problem, {err, err});
  return ProblemJson(err.str());
}

/// The problem of a run with the command that converts a file of another program.
template <typename Settings>
Json RefusalJson(const Problem& problem, const Settings& settings, Workforce& workforce) {
  std::ostringstream err;
  TellRefusal(problem, settings, workforce.Files(), {err, err});
  return ProblemJson(err.str());
}

TypedSettings TypedIn(const Json& request) {
  TypedSettings typed;
  for (const auto& [key, text] : request.at("typed").items()) {
    typed[key] = text.get<std::string>();
  }
  return typed;
}

bool IsOfSimulation(const Json& request) { return request.at("kind") == "simulation"; }

Json Form(const Json& request) {
  if (request.at("kind") == "import") {
    return ImportFormJson();
  }
  AlikeGroups<Problem> unread;
  if (IsOfSimulation(request)) {
    return FormJson(SimulationSettingTable(), ReadableSimulation(TypedIn(request), unread));
  }
  return FormJson(AllocationSettingTable(), ReadableAllocation(TypedIn(request), unread));
}

Json Check(const Json& request) {
  LocalThreads threads;
  if (IsOfSimulation(request)) {
    return Json::parse(JsonText(CheckSimulation(TypedIn(request), true, threads.Files())));
  }
  return Json::parse(JsonText(CheckAllocation(TypedIn(request), true, threads.Files())));
}

Json Look(const Json& request) {
  LocalThreads threads;
  const auto look = LookAtForeignFile(request.at("file").get<std::string>(), threads.Files());
  return look ? Json{{"format", look->key},
                     {"sentence", Escaped(look->sentence)},
                     {"populations", look->has_populations}}
              : Json();
}

Json TypedJson(const AllocationSettings& settings) {
  return {{"kind", "allocation"}, {"typed", TypedFrom(AllocationSettingTable(), settings)}};
}

Json TypedJson(const SimulationSettings& settings) {
  return {{"kind", "simulation"}, {"typed", TypedFrom(SimulationSettingTable(), settings)}};
}

Json Record(const Json& request) {
  const auto file = request.at("file").get<std::string>();
  const auto settings = ReadRunRecord(file).and_then(
      [&](const RunRecord& record) { return RunSettingsOf(record, file); });
  return settings ? std::visit([](const auto& each) { return TypedJson(each); }, *settings)
                  : ProblemJson(settings.error());
}

Json RunCommand(const Json& request) {
  std::ostringstream out;
  std::ostringstream err;
  const auto arguments = request.at("arguments").get<std::vector<std::string>>();
  const ExitCode code = RunCommandLine(arguments, {out, err});
  return {{"code", static_cast<int>(code)}, {"out", out.str()}, {"err", err.str()}};
}

template <typename Shown>
tl::expected<Exported, Problem> ExportShown(const Shown& shown, const WantedExports& exports) {
  return ExportRun(shown.settings, shown.run, exports, {.run_folder = shown.settings.project});
}

/// The names before an import, which lie beside the offspring.
OriginalNames NamesOf(const AllocationSettings& settings, FileSource& source) {
  const std::string path = settings.exports.names_file.empty()
                               ? NamesBeside(settings.offspring_file)
                               : settings.exports.names_file;
  auto names = path.empty() ? OriginalNames() : OriginalNames::Read(path, source);
  return names ? std::move(*names) : OriginalNames();
}

}  // namespace

std::string PageSession::Answer(std::string_view request, RunObserver& observer) {
  try {
    return Dumped(Answered(Json::parse(request), observer));
  } catch (const RunRefused& refused) {
    return Dumped(ProblemJson(refused.Reason()));
  } catch (const std::bad_alloc&) {
    return Dumped(ProblemJson("Out of memory. The results of earlier runs are as they were."));
  } catch (const std::exception& error) {
    return Dumped(ProblemJson(Escaped(error.what())));
  }
}

Json PageSession::Answered(const Json& request, RunObserver& observer) {
  const auto ask = request.at("ask").get<std::string>();
  if (ask == "form") {
    return Form(request);
  }
  if (ask == "look") {
    return Look(request);
  }
  if (ask == "check") {
    return Check(request);
  }
  if (ask == "run") {
    return Run(request, observer);
  }
  if (ask == "table") {
    return Table(request);
  }
  if (ask == "offspring") {
    return Offspring(request);
  }
  if (ask == "record") {
    return Record(request);
  }
  if (ask == "trial") {
    return Trial();
  }
  if (ask == "export") {
    return Export(request);
  }
  if (ask == "command") {
    return RunCommand(request);
  }
  return ProblemJson("There is no request " + Quoted(ask) + ".");
}

Json PageSession::Run(const Json& request, RunObserver& observer) {
  return IsOfSimulation(request) ? Simulate(TypedIn(request), observer)
                                 : Allocate(TypedIn(request), observer);
}

Json PageSession::Allocate(const TypedSettings& typed, RunObserver& observer) {
  auto settings = AllocationFrom(typed);
  if (!settings) {
    return ProblemJson(settings.error());
  }
  LocalThreads threads;
  AllocationExporter exporter;
  auto run = RunAllocation(*settings, observer, threads, &exporter);
  if (!run) {
    return RefusalJson(run.error(), *settings, threads);
  }
  simulation_.reset();
  OriginalNames names = NamesOf(*settings, threads.Files());
  allocation_.emplace(ShownAllocation{std::move(*settings), std::move(*run), std::move(names)});
  return SummaryJson(*allocation_);
}

Json PageSession::Simulate(const TypedSettings& typed, RunObserver& observer) {
  if (const auto problem = MissingProject(typed)) {
    return ProblemJson(*problem);
  }
  auto settings = SimulationFrom(typed);
  if (!settings) {
    return ProblemJson(settings.error());
  }
  LocalThreads threads;
  SimulationExporter exporter;
  auto run = RunSimulation(*settings, observer, threads, &exporter);
  if (!run) {
    return RefusalJson(run.error(), *settings, threads);
  }
  allocation_.reset();
  simulation_.emplace(ShownSimulation{std::move(*settings), std::move(*run)});
  return SummaryJson(*simulation_);
}

Json PageSession::Table(const Json& request) const {
  const auto name = request.at("name").get<std::string>();
  if (allocation_) {
    return ResultTableJson(*allocation_, name);
  }
  return simulation_ ? ResultTableJson(*simulation_, name) : Json();
}

Json PageSession::Offspring(const Json& request) const {
  return allocation_ ? LocusByLocusJson(*allocation_, request.at("place").get<std::size_t>(),
                                        request.value("pair", std::size_t{0}))
                     : Json();
}

Json PageSession::Trial() const {
  if (!allocation_) {
    return ProblemJson("There is no allocation to be tried.");
  }
  const auto trial =
      TrialOf(allocation_->settings, allocation_->run.input, allocation_->run.result);
  if (!trial) {
    return ProblemJson(trial.error());
  }
  Json told = TypedJson(trial->settings);
  told["note"] = trial->note;
  return told;
}

Json PageSession::Export(const Json& request) const {
  const auto wanted =
      ExportFormsKind(kAllExportForms).parse("--also", request.at("forms").get<std::string>());
  if (!wanted) {
    return ProblemJson(wanted.error());
  }
  WantedExports exports;
  exports.forms = *wanted;
  tl::expected<Exported, Problem> made;
  if (allocation_) {
    made = ExportShown(*allocation_, exports);
  } else if (simulation_) {
    made = ExportShown(*simulation_, exports);
  }
  if (!made) {
    return ProblemJson(made.error());
  }
  Json files = Json::array();
  for (const ExportedFile& file : made->files) {
    files.push_back(std::string(file.name.substr(1)));
  }
  return {{"files", std::move(files)}, {"warnings", made->warnings}};
}

}  // namespace kaldo
