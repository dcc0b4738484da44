// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/steps_page.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "allocation/run_comparison.h"
#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/result_table.h"

namespace kaldo {

namespace {

bool KnowsPairs(const AllocationRun& run) {
  return run.result.earlier_pairs.size() + 1 == run.input.combinations.size();
}

/// "2: + Mir14Di"
QString StepName(const AllocationInput& input, std::size_t step) {
  return Text("%1: + %2").arg(step + 1).arg(Text(input.loci.Name(input.combinations[step].back())));
}

QStringList Heads(Flow flow, std::size_t first, std::size_t second) {
  const std::array<Phrase, 2> parents = flow == Flow::kSexed
                                            ? std::array{Phrase("Male"), Phrase("Female")}
                                            : std::array{Phrase("Parent 1"), Phrase("Parent 2")};
  QStringList heads{Tr("Offspring")};
  for (const std::size_t step : {first, second}) {
    for (const Phrase& parent : parents) {
      heads += Tr("Step %1: %2").arg(step + 1).arg(Tr(parent));
    }
  }
  return heads;
}

}  // namespace

StepsPage::StepsPage(SharedAllocation allocation, const QString& folder, QWidget* parent)
    : QWidget(parent),
      allocation_(std::move(allocation)),
      steps_{new QComboBox, new QComboBox},
      numbers_(NewHint(nullptr)),
      changed_(NewHint(nullptr)),
      model_(new DataTableModel(this)) {
  numbers_->setObjectName(Text("StepsNumbers"));
  changed_->setObjectName(Text("StepsChanged"));
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(NewChoiceRow());
  layout->addWidget(numbers_);
  layout->addWidget(changed_);
  if (KnowsPairs(allocation_->run)) {
    table_ = new ResultTable(Tr("Offspring with another pair"));
    table_->setObjectName(Text("StepsTable"));
    table_->setModel(model_);
    layout->addWidget(table_, 1);
    layout->addLayout(NewTableButtons(
        *table_, "Steps",
        Phrase("Copy the selected offspring, or all, with their heads, to be pasted into a "
               "spreadsheet (Ctrl+C)."),
        Phrase("Save the table as it is shown (CSV)."), folder + Text("/steps.csv")));
  } else {
    layout->addStretch();
  }
  for (QComboBox* const step : steps_) {
    connect(step, &QComboBox::currentIndexChanged, this, [this] { ShowSteps(); });
  }
  ShowSteps();
}

QLayout* StepsPage::NewChoiceRow() {
  auto* const row = new QHBoxLayout;
  const AllocationInput& input = allocation_->run.input;
  const auto last = static_cast<int>(input.combinations.size()) - 1;
  const auto add = [&](QComboBox* box, Phrase caption, std::string_view name, int chosen) {
    for (std::size_t step = 0; step < input.combinations.size(); ++step) {
      box->addItem(StepName(input, step));
    }
    box->setCurrentIndex(chosen);
    box->setObjectName(Text(name));
    box->setToolTip(Tr("A step of the sequence: its number and the locus that it adds."));
    auto* const label = new QLabel(Tr(caption));
    label->setBuddy(box);
    row->addWidget(label);
    row->addWidget(box);
  };
  add(steps_[0], Phrase("S&tep:"), "StepsFirst", std::max(last - 1, 0));
  add(steps_[1], Phrase("Besi&de it:"), "StepsSecond", last);
  row->addStretch();
  return row;
}

void StepsPage::ShowSteps() {
  const auto first = static_cast<std::size_t>(steps_[0]->currentIndex());
  const auto second = static_cast<std::size_t>(steps_[1]->currentIndex());
  numbers_->setText(NumbersText(first, second));
  changed_->setText(table_ != nullptr
                        ? ShowChanged(first, second)
                        : Tr("The reports tell the pairs of the last step alone, so that of "
                             "results opened again only numbers are compared. Run again to see "
                             "which offspring have another pair."));
}

QString StepsPage::NumbersText(std::size_t first, std::size_t second) const {
  const std::vector<AllocationShares>& shares = allocation_->run.result.shares;
  QStringList numbers;
  for (std::size_t k = 0; k < shares[first].pairs.size(); ++k) {
    const AllocationShare& before = shares[first].pairs[k];
    const AllocationShare& after = shares[second].pairs[k];
    const double change = after.number - before.number;
    numbers += Tr("%1: %2, then %3 (%4)")
                   .arg(Text(before.name), ShortNumber(before.number), ShortNumber(after.number),
                        (change > 0 ? Text("+") : QString()) + ShortNumber(change));
  }
  return Tr("Offspring by class. %1").arg(numbers.join(Text("; ")));
}

QString StepsPage::ShowChanged(std::size_t first, std::size_t second) {
  const auto& [input, result] = allocation_->run;
  const AllocationSettings& settings = allocation_->settings;
  const RunStatements before = StatementsOfStep(settings, input, result, first);
  const RunStatements after = StatementsOfStep(settings, input, result, second);
  DataTable table{Heads(settings.flow, first, second), {}};
  for (const ComparedOffspring& offspring : Compare(before, after).offspring) {
    if (offspring.is_changed) {
      const RunStatement& a = before.offspring[*offspring.first];
      const RunStatement& b = after.offspring[*offspring.second];
      table.rows.push_back({Text(a.offspring), Text(a.parents[0]), Text(a.parents[1]),
                            Text(b.parents[0]), Text(b.parents[1])});
    }
  }
  QString text = Tr("%1 of %2 have another pair.")
                     .arg(table.rows.size())
                     .arg(TrCount("%n offspring", "%n offspring", result.outcomes.size()));
  model_->SetTable(std::move(table));
  table_->FitColumns();
  return text;
}

}  // namespace kaldo
