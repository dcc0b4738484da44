// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/allocation_window.h"

#include <QPointer>
#include <QPushButton>
#include <algorithm>

#include "allocation/findings.h"
#include "app/base/form_fields.h"
#include "app/base/messages.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/alleles_page.h"
#include "app/results/allocation_summary.h"
#include "app/results/chart_panel.h"
#include "app/results/loci_use_page.h"
#include "app/results/mating_page.h"
#include "app/results/offspring_page.h"
#include "app/results/parents_page.h"
#include "app/results/run_comparison_window.h"
#include "app/results/steps_page.h"
#include "simulation/trial_of_allocation.h"

namespace kaldo {

namespace {

/// Why there are no probabilities to go by; empty where there are.
Phrase WithoutProbabilities(const AllocationResult& result) {
  if (KnowsCertainty(result)) {
    return {};
  }
  return result.confidence ? Phrase("none: the error model has a negative probability")
                           : Phrase("none: probabilities are not known");
}

}  // namespace

AllocationWindow::AllocationWindow(AllocationSettings settings, AllocationRun run, QString folder,
                                   QWidget* parent)
    : ResultsWindow(settings.project, std::move(folder), parent) {
  setObjectName(Text("AllocationResults"));
  const SharedAllocation shared = std::make_shared<const FinishedAllocation>(
      FinishedAllocation{std::move(settings), std::move(run)});
  SetExports({.forms = {kAllExportForms.begin(), kAllExportForms.end()},
              .needs_sexes = shared->settings.flow == Flow::kNonSexed,
              .without_probabilities = WithoutProbabilities(shared->run.result),
              .make = [shared](const WantedExports& wanted, const ExportPlace& place) {
                return ExportRun(shared->settings, shared->run, wanted, place);
              }});
  allocation_ = shared;
  auto* offspring = new OffspringPage(shared, Folder());
  AddSummary(shared, *offspring);
  AddTab(offspring, Phrase("&Offspring"),
         Phrase("The parents of every offspring, and why, locus by locus."));
  const auto show_offspring = [this, offspring](Slot of_parent) {
    offspring->ShowOffspringOf(of_parent);
    ShowTab(*offspring);
  };
  AddTab(new ParentsPage(shared, Folder(), show_offspring), Phrase("&Parents"),
         Phrase("The offspring and mates of every collected parent, and who has none."));
  AddTab(new MatingPage(shared, Folder(),
                        [this, offspring](std::vector<std::size_t> places, const QString& what) {
                          offspring->ShowSome(std::move(places), what);
                          ShowTab(*offspring);
                        }),
         Phrase("Matin&gs"), Phrase("Who had offspring with whom, as a table that is a picture."));
  if (shared->settings.sequence) {
    auto* sequence = new ChartPanel(Text("Sequence"), Qt::Vertical, Folder(), nullptr);
    sequence->Show(SequenceChart(shared->run.input, shared->run.result));
    AddTab(sequence, Phrase("Se&quence"), Phrase("How the proportions settle as loci are added."));
    AddTab(new StepsPage(shared, Folder()), Phrase("Step &by step"),
           Phrase("Which offspring have another pair after another step of the sequence."));
  }
  AddTab(new AllelesPage(shared, Folder()), Phrase("&Alleles"),
         Phrase("The allele frequencies of each locus."));
  if (!shared->run.result.loci_quality.empty()) {
    AddTab(new LociUsePage(*shared, Folder()), Phrase("Loc&i"),
           Phrase("What each locus is worth, and what may be wrong with it."));
  }
}

void AllocationWindow::AddSummary(const SharedAllocation& shared, OffspringPage& offspring) {
  const AllocationResult& result = shared->run.result;
  summary_ = new SummaryPage(SummaryOf(shared->settings, shared->run, Folder()),
                             ProportionsChart(shared->settings.flow, result),
                             ProportionsTable(result.LastShares()), Folder());
  summary_->SetOnCheck([this, &offspring, checks = FindingsOf(result).to_check](std::size_t line) {
    if (line < std::min(checks.size(), kMostToCheck)) {
      offspring.ShowOffspring(checks[line].place);
    } else {
      offspring.ShowToCheck();
    }
    ShowTab(offspring);
  });
  AddTab(summary_, Phrase("&Summary"), Phrase("What was found, what to check, and what was run."));
}

void AllocationWindow::OfferTrial(StartTrial start) {
  summary_->OfferTrial([this, start = std::move(start)] {
    const auto trial =
        TrialOf(allocation_->settings, allocation_->run.input, allocation_->run.result);
    if (!trial) {
      return ShowFailure(this, TrCore(trial.error()));
    }
    const QPointer<AllocationWindow> asking(this);  // it may be closed meanwhile
    if (!trial->note.empty()) {
      ShowSentence(this, trial->note);
    }
    const auto figures = start(trial->settings);
    if (asking && figures) {
      summary_->AddNote(TrCore(*figures));
    }
  });
}

void AllocationWindow::OfferComparison(ChooseOtherRun choose) {
  auto* const compare =
      NewButton(Phrase("Compare with another run..."), "CompareRuns",
                Phrase("Show which offspring have another pair in another run (Ctrl+D)."));
  compare->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_D));
  connect(compare, &QPushButton::clicked, this, [this, choose = std::move(choose)] {
    const QPointer<AllocationWindow> asking(this);  // it may be closed meanwhile
    const auto other = choose(this);
    if (!asking || !other) {
      return;
    }
    const OtherRun here{
        StatementsOf(allocation_->settings, allocation_->run.input, allocation_->run.result),
        Folder()};
    auto* const window = new RunComparisonWindow(here, *other, this);
    window->show();
    window->raise();
    window->activateWindow();
  });
  AddButton(compare);
}

}  // namespace kaldo
