// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/subset_page.h"

#include <QComboBox>
#include <QHeaderView>
#include <QSplitter>
#include <QVBoxLayout>

#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/chart_panel.h"
#include "app/results/result_table.h"
#include "app/results/searchable_table.h"
#include "app/results/simulation_summary.h"
#include "app/results/subset_model.h"
#include "simulation/reports/estimate_texts.h"
#include "simulation/reports/subset_title.h"

namespace kaldo {

namespace {

constexpr int kOnlyBest = -1;
constexpr int kAllSizes = 0;

constexpr SearchableTexts kTexts{"Subsets",
                                 Phrase("Subsets of loci"),
                                 Phrase("names of loci"),
                                 Phrase("Show only subsets that contain all these loci, with "
                                        "blanks between them; parts of names will "
                                        "do."),
                                 Phrase("Show only subsets of one size, or the best of each."),
                                 "subsets.csv"};

ChartPanel* BestPanel(const FinishedSimulation& simulation, const SubsetModel& model,
                      const QString& folder) {
  LineChart chart;
  chart.texts = {Tr("Any allocation correct, best subset of each size"), Tr("loci"),
                 Tr("estimated probability"), true};
  ChartSeries series{Tr("any allocation correct"), {}};
  DataTable table{{Tr("loci"), Tr("any correct"), Tr("best subset"), Tr("se")}, {}};
  for (const auto& [size, place] : model.Best()) {
    const SubsetFigures& best = simulation.run.result.subsets[place];
    const double correct = best.probabilities.any;
    chart.positions.push_back(static_cast<double>(size));
    series.values.push_back({correct, {}});
    const Estimate& any = EstimateOfKind(best.estimates.population, AllocationKind::kAny);
    table.rows.push_back({QString::number(size), ShortNumber(correct),
                          Text(NamesOf(simulation.run.input.loci, best.loci)),
                          NumberOrNone(any.error)});
  }
  chart.series.push_back(std::move(series));
  auto* panel = new ChartPanel(Text("BestSubsets"), Qt::Horizontal, folder, nullptr);
  panel->Show(chart, table);
  return panel;
}

}  // namespace

SubsetPage::SubsetPage(const SharedSimulation& simulation, const QString& folder, QWidget* parent)
    : QWidget(parent),
      model_(new SubsetModel(simulation, this)),
      list_(new SearchableTable(kTexts, folder)) {
  QComboBox& choices = list_->Choices();
  choices.addItem(Tr("all subsets"), kAllSizes);
  choices.addItem(Tr("best of each size"), kOnlyBest);
  for (const auto& [size, place] : model_->Best()) {
    choices.addItem(TrCount("%n loci", "%n locus", size), static_cast<int>(size));
  }
  ResultTable& table = list_->Table();
  table.setModel(model_);
  table.horizontalHeader()->setSortIndicator(static_cast<int>(SubsetColumn::kBest),
                                             Qt::AscendingOrder);
  table.setSortingEnabled(true);
  table.FitColumns();
  table.horizontalHeader()->setStretchLastSection(true);
  auto* splitter = new QSplitter(Qt::Vertical);
  splitter->addWidget(list_);
  splitter->addWidget(BestPanel(*simulation, *model_, folder));
  splitter->setStretchFactor(0, 1);
  splitter->setStretchFactor(1, 1);
  splitter->setChildrenCollapsible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(splitter);
  list_->SetOnChoice([this] { Narrow(); });
  Narrow();
}

void SubsetPage::Narrow() {
  const int chosen = list_->Choices().currentData().toInt();
  SubsetChoice choice;
  choice.loci = list_->SoughtText();
  choice.only_best = chosen == kOnlyBest;
  if (chosen > kAllSizes) {
    choice.size = static_cast<std::size_t>(chosen);
  }
  model_->Choose(choice);
  list_->SetCount(Tr("%1 of %2 subsets").arg(model_->rowCount()).arg(model_->AllSubsets()));
}

}  // namespace kaldo
