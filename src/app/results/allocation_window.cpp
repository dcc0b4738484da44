// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/allocation_window.h"

#include "app/base/text.h"
#include "app/results/allocation_summary.h"
#include "app/results/chart_panel.h"

namespace kaldo {

AllocationWindow::AllocationWindow(AllocationSettings settings, AllocationRun run, QString folder,
                                   QWidget* parent)
    : ResultsWindow(settings.project, std::move(folder), parent) {
  const AllocationCounters& counters = run.result.LastCounters();
  AddTab(
      new SummaryPage(SummaryOf(settings, run, Folder()), ProportionsChart(settings.flow, counters),
                      ProportionsTable(settings.flow, counters), Folder()),
      Text("&Summary"), Text("What was run, and the proportions of allocations."));
  if (settings.sequence) {
    auto* sequence = new ChartPanel(Text("sequence"), Qt::Horizontal, Folder(), nullptr);
    sequence->Show(SequenceChart(settings.flow, run.input, run.result));
    AddTab(sequence, Text("Se&quence"), Text("How the proportions settle as loci are added."));
  }
}

}  // namespace kaldo
