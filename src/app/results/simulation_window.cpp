// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/simulation_window.h"

#include "app/base/text.h"
#include "app/results/chart_panel.h"
#include "app/results/simulation_summary.h"

namespace kaldo {

SimulationWindow::SimulationWindow(SimulationSettings settings, SimulationRun run, QString folder,
                                   QWidget* parent)
    : ResultsWindow(settings.project, std::move(folder), parent) {
  const SimulationFlow& flow = FlowOf(settings);
  const std::vector<Correctness> classes = CorrectnessOf(flow, run);
  AddTab(new SummaryPage(SummaryOf(settings, run, Folder()), CorrectnessChart(settings, classes),
                         CorrectnessTable(classes), Folder()),
         Text("&Summary"), Text("What was simulated, and how often decisions were correct."));
  if (settings.strategy == LociStrategy::kCumulative) {
    auto* sequence = new ChartPanel(Text("sequence"), Qt::Horizontal, Folder(), nullptr);
    sequence->Show(SequenceChart(flow, run));
    AddTab(sequence, Text("Se&quence"), Text("What each further locus adds."));
  }
}

}  // namespace kaldo
