// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/allocation_window.h"

#include "app/base/text.h"
#include "app/results/alleles_page.h"
#include "app/results/allocation_summary.h"
#include "app/results/chart_panel.h"
#include "app/results/offspring_page.h"

namespace kaldo {

AllocationWindow::AllocationWindow(AllocationSettings settings, AllocationRun run, QString folder,
                                   QWidget* parent)
    : ResultsWindow(settings.project, std::move(folder), parent) {
  const SharedAllocation shared = std::make_shared<const FinishedAllocation>(
      FinishedAllocation{std::move(settings), std::move(run)});
  const AllocationShares& shares = shared->run.result.LastShares();
  AddTab(new SummaryPage(SummaryOf(shared->settings, shared->run, Folder()),
                         ProportionsChart(shares), ProportionsTable(shares), Folder()),
         Text("&Summary"), Text("What was run, and the proportions of allocations."));
  AddTab(new OffspringPage(shared, Folder()), Text("&Offspring"),
         Text("The parents of every offspring, and why, locus by locus."));
  if (shared->settings.sequence) {
    auto* sequence = new ChartPanel(Text("Sequence"), Qt::Horizontal, Folder(), nullptr);
    sequence->Show(SequenceChart(shared->run.input, shared->run.result));
    AddTab(sequence, Text("Se&quence"), Text("How the proportions settle as loci are added."));
  }
  AddTab(new AllelesPage(shared, Folder()), Text("&Alleles"),
         Text("The allele frequencies of each locus."));
}

}  // namespace kaldo
