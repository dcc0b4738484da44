// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/simulation_window.h"

#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/chart_panel.h"
#include "app/results/finished_runs.h"
#include "app/results/simulation_summary.h"
#include "app/results/spread_page.h"
#include "app/results/subset_page.h"
#include "simulation/reports/subset_title.h"

namespace kaldo {

SimulationWindow::SimulationWindow(SimulationSettings settings, SimulationRun run, QString folder,
                                   QWidget* parent)
    : ResultsWindow(settings.project, std::move(folder), parent) {
  setObjectName(Text("SimulationResults"));
  const SharedSimulation shared = std::make_shared<const FinishedSimulation>(
      FinishedSimulation{std::move(settings), std::move(run)});
  SetExports({.forms = {kSimulationExportForms.begin(), kSimulationExportForms.end()},
              .make = [shared](const WantedExports& wanted, const ExportPlace& place) {
                return ExportRun(shared->settings, shared->run, wanted, place);
              }});
  const LociStrategy strategy = shared->settings.strategy;
  const std::vector<Correctness> classes = CorrectnessOf(shared->settings.flow, shared->run.result);
  AddTab(new SummaryPage(SummaryOf(shared->settings, shared->run, Folder()),
                         CorrectnessChart(shared->settings, classes), CorrectnessTable(classes),
                         Folder()),
         Phrase("&Summary"), Phrase("What was simulated, and how often decisions were correct."));
  AddTab(new SpreadPage(classes, TrCore(LastCombinationNote(strategy)), Folder()),
         Phrase("S&pread"),
         Phrase("How much the share of correct decisions varies between iterations."));
  auto* estimates = new ChartPanel(Text("Estimates"), Qt::Vertical, Folder(), nullptr);
  estimates->Show(EstimatesChart(shared->settings, shared->run.result),
                  EstimatesTable(shared->settings.flow, shared->run.result));
  AddTab(estimates, Phrase("Est&imates"),
         Phrase("Every estimated probability that an allocation is correct, and how exact it is."));
  if (strategy == LociStrategy::kCumulative) {
    auto* sequence = new ChartPanel(Text("Sequence"), Qt::Vertical, Folder(), nullptr);
    sequence->Show(SequenceChart(shared->settings.flow, shared->run));
    AddTab(sequence, Phrase("Se&quence"), Phrase("What each further locus adds."));
  }
  if (strategy == LociStrategy::kAll || strategy == LociStrategy::kMinimal) {
    AddTab(new SubsetPage(shared, Folder()), Phrase("Su&bsets"),
           Phrase("Which loci, and how many, are enough."));
  }
}

}  // namespace kaldo
