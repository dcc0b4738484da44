// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pages/strategy_page.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>
#include <limits>

#include <fmt/format.h>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "base/problem.h"

namespace kaldo {

namespace {

struct StrategyText {
  LociStrategy strategy;
  FieldText text;
};

constexpr std::array<StrategyText, 4> kStrategyTexts{{
    {LociStrategy::kChoice,
     {Phrase("-   &Your choice of loci"), "ChoiceOfLociStrategy",
      Phrase("One run with the loci of your choice.")}},
    {LociStrategy::kAll,
     {Phrase("-   &All subsets of loci"), "AllSubsets",
      Phrase("Every subset of the loci, from the smallest size on. Their number doubles with every "
             "locus: "
             "10 loci have 1,023 subsets.")}},
    {LociStrategy::kMinimal,
     {Phrase("-   &Minimal subsets with correctness criteria"), "MinimalSubsets",
      Phrase("The same subsets, smallest first, until one reaches the criterion below.")}},
    {LociStrategy::kCumulative,
     {Phrase("-   &Cumulative sequence"), "CumulativeStrategy",
      Phrase("The first locus, the first two, and so on, in the order of the next screen.")}},
}};

constexpr FieldText kCriterion{Phrase("&Give correctness criteria :"), "Criterion",
                               Phrase("The probability that any allocation is correct which a "
                                      "minimal subset has to reach: 0 to 1.")};
constexpr FieldText kStartWith{Phrase("&Number of loci to start with :"), "StartWith",
                               Phrase("The smallest number of loci of a subset: 1 or more.")};

}  // namespace

StrategyPage::StrategyPage(Flow flow)
    : FlowPage(kStrategyScreen, SimulationCaption(flow)),
      strategies_(new QButtonGroup(this)),
      loci_(NewHint(nullptr)) {
  auto* const group = new QGroupBox(Tr("     Simulations run with :     "));
  auto* const inside = new QVBoxLayout(group);
  for (const StrategyText& strategy : kStrategyTexts) {
    auto* const button = new QRadioButton(Tr(strategy.text.label));
    Describe(*button, strategy.text);
    strategies_->addButton(button, static_cast<int>(strategy.strategy));
    inside->addWidget(button);
  }
  auto* const form = new QFormLayout;
  criterion_ = AddLineEdit(*form, kCriterion);
  start_with_ = AddLineEdit(*form, kStartWith);
  const SimulationSettings first_shown = FirstShownSimulation(flow);
  criterion_->setText(NumberText(first_shown.criterion));
  start_with_->setText(NumberText(first_shown.start_with));
  inside->addLayout(form);
  inside->addLayout(NewLociRow());
  auto* const column = new QVBoxLayout(this);
  column->addWidget(group);
  column->addStretch();
}

QLayout* StrategyPage::NewLociRow() {
  auto* const choose = NewButton(Phrase("C&hoose loci..."), "ChooseLoci",
                                 Phrase("Leave loci out of the subsets or of the sequence"));
  choose->setAutoDefault(false);
  connect(choose, &QPushButton::clicked, this, [this] { on_choose_loci_(); });
  auto* const row = new QHBoxLayout;
  row->addWidget(loci_, 1);
  row->addWidget(choose);
  return row;
}

void StrategyPage::ShowLoci(std::size_t in_use, std::size_t all) {
  loci_->setText(
      in_use == all
          ? Tr("Subsets and sequences are formed from all %1 loci.").arg(all)
          : Tr("Subsets and sequences are formed from %1 of %2 loci.").arg(in_use).arg(all));
}

void StrategyPage::Set(const SimulationSettings& settings) {
  strategies_->button(static_cast<int>(settings.strategy))->setChecked(true);
  criterion_->setText(NumberText(settings.criterion));
  start_with_->setText(NumberText(settings.start_with));
}

std::optional<LociStrategy> StrategyPage::Strategy() const {
  const int chosen = strategies_->checkedId();
  return chosen < 0 ? std::nullopt : std::optional(static_cast<LociStrategy>(chosen));
}

void StrategyPage::FillIn(SimulationSettings& settings) const {
  settings.strategy = Strategy().value_or(LociStrategy::kChoice);
  settings.criterion = NumberIn(*criterion_).value_or(std::numeric_limits<double>::quiet_NaN());
  settings.start_with = WholeNumberIn(*start_with_).value_or(0);
}

void StrategyPage::TellTyped(Problem& problem) const {
  if (problem.kind == ProblemKind::kCriterionOutOfRange) {
    TellIfNoNumber(*criterion_, problem);
  } else if (problem.kind == ProblemKind::kStartWithTooSmall) {
    TellIfNoWholeNumber(*start_with_, problem);
  }
}

}  // namespace kaldo
