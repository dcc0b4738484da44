// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/subset_page.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "app/base/text.h"
#include "app/results/chart_panel.h"
#include "app/results/result_table.h"
#include "app/results/simulation_summary.h"
#include "app/results/subset_model.h"
#include "simulation/subset_title.h"

namespace kaldo {

namespace {

constexpr int kOnlyBest = -1;
constexpr int kAllSizes = 0;

ChartPanel* BestPanel(const FinishedSimulation& simulation, const SubsetModel& model,
                      const QString& folder) {
  const SimulationFlow& flow = FlowOf(simulation.settings);
  LineChart chart;
  chart.texts = {Text("Any allocation correct, best subset of each size"), Text("loci"),
                 Text("estimated probability"), true};
  ChartSeries series{Text("any allocation correct"), {}};
  DataTable table{{Text("loci"), Text("any correct"), Text("best subset")}, {}};
  for (const auto& [size, place] : model.Best()) {
    const SubsetFigures& best = simulation.run.result.subsets[place];
    const double correct = AnyCorrect(flow, best);
    chart.positions.push_back(static_cast<double>(size));
    series.values.push_back({correct, {}});
    table.rows.push_back({QString::number(size), ShortNumber(correct),
                          Text(NamesOf(simulation.run.input.loci, best.loci))});
  }
  chart.series.push_back(std::move(series));
  auto* panel = new ChartPanel(Text("BestSubsets"), Qt::Horizontal, folder, nullptr);
  panel->Show(chart, table);
  return panel;
}

}  // namespace

SubsetPage::SubsetPage(const SharedSimulation& simulation, QString folder, QWidget* parent)
    : QWidget(parent),
      folder_(std::move(folder)),
      model_(new SubsetModel(simulation, this)),
      table_(new ResultTable(Text("Subsets of loci"))),
      find_(new QLineEdit),
      show_(new QComboBox),
      count_(new QLabel) {
  table_->setObjectName(Text("SubsetsTable"));
  table_->setModel(model_);
  table_->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
  table_->setSortingEnabled(true);
  table_->FitColumns();
  table_->horizontalHeader()->setStretchLastSection(true);
  auto* splitter = new QSplitter(Qt::Vertical);
  splitter->addWidget(ListSide());
  splitter->addWidget(BestPanel(*simulation, *model_, folder_));
  splitter->setStretchFactor(0, 1);
  splitter->setStretchFactor(1, 1);
  splitter->setChildrenCollapsible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(splitter);
  connect(find_, &QLineEdit::textChanged, this, [this] { Narrow(); });
  connect(show_, &QComboBox::currentIndexChanged, this, [this] { Narrow(); });
  Narrow();
}

QWidget* SubsetPage::ChoiceRow() {
  find_->setObjectName(Text("SubsetsFind"));
  find_->setPlaceholderText(Text("names of loci"));
  find_->setToolTip(
      Text("Show only subsets that contain all these loci, with blanks between "
           "them; parts of names will do."));
  find_->setClearButtonEnabled(true);
  show_->setObjectName(Text("SubsetsShow"));
  show_->setToolTip(Text("Show only subsets of one size, or the best of each."));
  show_->addItem(Text("all subsets"), kAllSizes);
  show_->addItem(Text("best of each size"), kOnlyBest);
  for (const auto& [size, place] : model_->Best()) {
    show_->addItem(size == 1 ? Text("1 locus") : Text("%1 loci").arg(size), static_cast<int>(size));
  }
  count_->setObjectName(Text("SubsetsCount"));
  auto* find_label = new QLabel(Text("Fi&nd:"));
  find_label->setBuddy(find_);
  auto* show_label = new QLabel(Text("Sho&w:"));
  show_label->setBuddy(show_);
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(find_label);
  layout->addWidget(find_, 1);
  layout->addWidget(show_label);
  layout->addWidget(show_);
  layout->addWidget(count_);
  return row;
}

QWidget* SubsetPage::ListSide() {
  auto* copy = new QPushButton(Text("Copy &rows"));
  copy->setObjectName(Text("SubsetsCopy"));
  copy->setToolTip(
      Text("Copy the selected rows with their heads, to be pasted into a spreadsheet (Ctrl+C)."));
  auto* save = new QPushButton(Text("&Export table..."));
  save->setObjectName(Text("SubsetsExport"));
  save->setToolTip(Text("Save all rows shown, in their order, as comma-separated values."));
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(copy);
  buttons->addWidget(save);
  auto* side = new QWidget;
  auto* layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(ChoiceRow());
  layout->addWidget(table_);
  layout->addLayout(buttons);
  connect(copy, &QPushButton::clicked, this, [this] { table_->CopyRows(); });
  connect(save, &QPushButton::clicked, this,
          [this] { table_->ExportRows(folder_ + Text("/subsets.csv")); });
  return side;
}

void SubsetPage::Narrow() {
  const int chosen = show_->currentData().toInt();
  SubsetChoice choice;
  choice.loci = find_->text();
  choice.only_best = chosen == kOnlyBest;
  if (chosen > kAllSizes) {
    choice.size = static_cast<std::size_t>(chosen);
  }
  model_->Choose(choice);
  count_->setText(Text("%1 of %2 subsets").arg(model_->rowCount()).arg(model_->AllSubsets()));
}

}  // namespace kaldo
